#include "widgets/Navegador.h"

#include <QDesktopServices>

namespace navegador {

static Abridor &sustituto()
{
    static Abridor actual;
    return actual;
}

void sustituir(Abridor abridor)
{
    sustituto() = std::move(abridor);
}

bool abrir(const QUrl &direccion)
{
    return sustituto() ? sustituto()(direccion) : QDesktopServices::openUrl(direccion);
}

bool abrirFichero(const QString &ruta)
{
    return abrir(QUrl::fromLocalFile(ruta));
}

} // namespace navegador
