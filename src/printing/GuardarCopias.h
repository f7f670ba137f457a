#pragma once

#include <QStringList>

class QWidget;
class TrabajoImpresion;

/// Asks where to, and saves the copies of a job as one PDF or as one PDF each. The user is told
/// what was saved, and may open it, or why it was not. True when all is saved.
bool guardarCopias(QWidget *pantalla, TrabajoImpresion &trabajo, bool unoSolo);

/// The same in these files: one for all copies, or one for each.
bool guardarCopiasEn(QWidget *pantalla, TrabajoImpresion &trabajo, const QStringList &rutas);

/// Where the last PDF of the session went, or the user's own folder.
QString ultimaCarpeta();
void ultimaCarpeta(const QString &carpeta);

/// Asks once when some of these files are there: the file dialogue can only ask about the name that
/// the user chose. True when they may be written.
bool aceptaSobrescribir(QWidget *pantalla, const QStringList &rutas);
