#pragma once

#include <QUrl>

#include <functional>

/// Whatever the program opens in the user's browser.
namespace navegador {

/// Opens a page of the network or of this machine; false when there is no program for it.
bool abrir(const QUrl &direccion);

/// Takes the place of the browser while it is not empty; for tests.
using Abridor = std::function<bool(const QUrl &)>;
void sustituir(Abridor abridor);

} // namespace navegador
