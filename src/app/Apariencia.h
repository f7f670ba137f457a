#pragma once

class QMainWindow;

/// Style, palette and letter size of the whole program.
void aplicarApariencia();

/// Shows the main window in the middle of the screen, or over all of it when it is small.
void mostrarCentrada(QMainWindow &ventana);
