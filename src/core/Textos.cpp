#include "core/Textos.h"

#include "resources/Mensajes.h"

static qint16 &actual()
{
    static qint16 desplazamiento = 0;
    return desplazamiento;
}

qint16 desplazamientoIdioma()
{
    return actual();
}

void fijarDesplazamientoIdioma(qint16 desplazamiento)
{
    actual() = desplazamiento;
}

QString msj(Msj cual)
{
    return msjDesde(cual, 0);
}

QString msjDesde(Msj primera, int k)
{
    return mensajeNumero(static_cast<int>(primera) + k + actual());
}

QString elegir(const QString &castellano, const QString &euskera)
{
    return actual() == 0 ? castellano : euskera;
}
