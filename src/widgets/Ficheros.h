#pragma once

#include <QString>

#include <functional>

class QFileDialog;
class QWidget;

/// Every file dialogue of the program.
namespace ficheros {

/// Where files of the user are looked for and offered: the documents, else the home folder.
QString propuesta();

/// A file to read; empty when the user gave up. `filtro` as QFileDialog takes it.
QString abrir(QWidget *padre, const QString &titulo, const QString &carpeta, const QString &filtro);

/// A file to write, `propuesto` being offered. The dialogue does not ask about overwriting when
/// `confirmar` is false.
QString guardar(QWidget *padre, const QString &titulo, const QString &propuesto,
                const QString &filtro, bool confirmar = true);

/// A folder, `propuesta` being offered; empty when the user gave up.
QString carpeta(QWidget *padre, const QString &titulo, const QString &propuesta);

/// Called with each dialogue just before it opens; tests drive the real window through it.
using Observador = std::function<void(QFileDialog &)>;
void observar(Observador observador);

/// Keeps Qt's own file dialogue from remembering its settings in the user's folders. Once, before
/// the first dialogue.
void sinRastro();

} // namespace ficheros
