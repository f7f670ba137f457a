#pragma once

#include <QUrl>

#include <functional>

/// Whatever the program hands to the user's desktop: pages, files and folders.
namespace navegador {

/// Opens a page, or a file or folder of this machine; false when there is no program for it.
bool abrir(const QUrl &direccion);
bool abrirFichero(const QString &ruta);

/// Takes the place of the desktop while it is not empty; for tests.
using Abridor = std::function<bool(const QUrl &)>;
void sustituir(Abridor abridor);

} // namespace navegador
