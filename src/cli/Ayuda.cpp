#include "cli/Orden.h"
#include "core/Textos.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static QString conValor(const Opcion &opcion)
{
    if (opcion.nombre == Comun::Ayuda)
        return u"-h, --help"_s;
    const QString nombre = conGuiones(opcion.nombre);
    return opcion.valor.isEmpty() ? nombre : nombre + u' ' + opcion.valor.toString();
}

/// The parts one after the other, in lines of the width of a terminal.
static QString plegar(const QStringList &partes)
{
    static constexpr qsizetype Ancho = 79;
    QString texto;
    QString linea = u" "_s;
    for (const QString &parte : partes) {
        if (linea.size() + 1 + parte.size() > Ancho) {
            texto += linea + u'\n';
            linea = u"        "_s;
        }
        linea += u' ' + parte;
    }
    return texto + linea;
}

static QString usoDe(const Orden &orden)
{
    QStringList partes{u"ostrel"_s, orden.palabras.toString()};
    if (!orden.argumento.isEmpty())
        partes += orden.argumento.toString();
    for (const Opcion &opcion : orden.opciones) {
        const QString texto = conValor(opcion);
        if (opcion.uso == Opcion::Obligatoria)
            partes += texto;
        else
            partes += u'[' + texto + (opcion.uso == Opcion::Repetible ? u" …]"_s : u"]"_s);
    }
    return plegar(partes);
}

static QStringList lineasOpciones(std::span<const Opcion> opciones, qsizetype ancho)
{
    QStringList lineas;
    for (const Opcion &opcion : opciones)
        lineas += u"  "_s + conValor(opcion).leftJustified(ancho + 2) + msj(opcion.ayuda);
    return lineas;
}

static qsizetype anchoOpciones(std::span<const Opcion> opciones)
{
    qsizetype ancho = 0;
    for (const Opcion &opcion : opciones)
        ancho = std::max(ancho, conValor(opcion).size());
    return ancho;
}

static QString ayudaDe(const Orden &orden)
{
    const auto ancho = std::max(anchoOpciones(orden.opciones), anchoOpciones(opcionesComunes()));
    QStringList lineas{msj(orden.ayuda), QString(), msj(Msj::CliUso), usoDe(orden), QString()};
    lineas += lineasOpciones(orden.opciones, ancho);
    lineas += lineasOpciones(opcionesComunes(), ancho);
    return lineas.join(u'\n');
}

static QString ayudaGeneral(const QStringList &palabras)
{
    const QString comienzo = palabras.join(u' ');
    const bool alguna = std::ranges::any_of(
        ordenes(), [&](const Orden *orden) { return orden->palabras.startsWith(comienzo); });
    QStringList lineas{msj(Msj::CliUso), u"  ostrel [--carpeta DIR]"_s,
                       u"      "_s + msj(Msj::CliAyudaVentana)};
    for (const Orden *orden : ordenes())
        if (!alguna || orden->palabras.startsWith(comienzo))
            lineas += {usoDe(*orden), u"      "_s + msj(orden->ayuda)};
    lineas += QString();
    lineas += lineasOpciones(opcionesComunes(), anchoOpciones(opcionesComunes()));
    return lineas.join(u'\n');
}

QString textoAyuda(const QStringList &palabras)
{
    const Orden *orden = buscarOrden(palabras);
    if (!orden)
        return ayudaGeneral(palabras);
    QString texto = ayudaDe(*orden);
    for (const Orden *otra : ordenes())
        if (otra->palabras.startsWith(orden->palabras.toString() + u' '))
            texto += u"\n\n"_s + usoDe(*otra) + u"\n      "_s + msj(otra->ayuda);
    return texto;
}
