#pragma once

#include <QStringList>

class QWidget;
class TrabajoImpresion;

/// Asks where to, and saves the copies of a job as one PDF or as one PDF each. The user is told
/// what was saved, and may open it, or why it was not. True when all is saved.
bool guardarCopias(QWidget *pantalla, TrabajoImpresion &trabajo, bool unoSolo);

/// The same in these files: one for all copies, or one for each.
bool guardarCopiasEn(QWidget *pantalla, TrabajoImpresion &trabajo, const QStringList &rutas);
