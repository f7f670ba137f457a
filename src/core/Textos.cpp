#include "core/Textos.h"

#include "resources/Mensajes.h"

static Idioma &actual()
{
    static auto idioma = Idioma::Castellano;
    return idioma;
}

Idioma idiomaSesion()
{
    return actual();
}

void fijarIdioma(Idioma idioma)
{
    actual() = idioma;
}

qint16 desplazamientoIdioma()
{
    return desplazamiento(actual());
}

QString msj(Msj cual, Idioma idioma)
{
    return textoMensaje(static_cast<int>(cual), idioma);
}

QString msj(Msj cual)
{
    return msj(cual, actual());
}

QString msjDesde(Msj primera, int k)
{
    return textoMensaje(static_cast<int>(primera) + k, actual());
}

QString elegir(const QString &castellano, const QString &euskera, Idioma idioma)
{
    return idioma == Idioma::Castellano ? castellano : euskera;
}
