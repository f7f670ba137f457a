#pragma once

class QWidget;
class TrabajoImpresion;

/// Asks where to, and saves the copies of a job as one PDF or as one PDF each. The user is told
/// what was saved, or why not.
void guardarCopias(QWidget *pantalla, TrabajoImpresion &trabajo, bool unoSolo);
