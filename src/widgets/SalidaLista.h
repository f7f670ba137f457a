#pragma once

#include <QString>

class QMenu;
class QTableView;

/// What leaves a list for other programs, as the user sees it: rows and headings in the session's
/// language, columns that are hidden left out, amounts as they are written here.

/// Ctrl+C copies the rows selected, with their headings, for a spreadsheet. With ponerAcciones
/// (cUtilidadesGrid.h) the list's menu offers it too.
void permitirSalida(QTableView *lista);

/// Adds what the list offers to its menu.
void anadirSalidas(QMenu &menu, QTableView *lista);
