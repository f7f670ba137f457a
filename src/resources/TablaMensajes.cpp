#include "resources/TablaMensajes.h"

#include <QFile>
#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

static void leer(const QString &ruta, QList<Mensaje> &tabla)
{
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QTextStream texto(&fichero);
    for (QString linea; texto.readLineInto(&linea);) {
        if (linea.startsWith(u'#'))
            continue;
        auto campos = linea.replace(u"\\n"_s, u"\n"_s).replace(u"\\r"_s, u"\r"_s).split(u'|');
        if (campos.size() == 4)
            tabla.append({campos[0].toInt(), campos[1], campos[2], campos[3]});
    }
}

const QList<Mensaje> &tablaMensajes()
{
    static const QList<Mensaje> tabla = [] {
        QList<Mensaje> leidos;
        leer(u":/textos/mensajes.txt"_s, leidos);
        leer(u":/textos/textos_propios.txt"_s, leidos);
        std::ranges::sort(leidos, {}, &Mensaje::numero);
        return leidos;
    }();
    return tabla;
}

QString textoMensaje(int numero, Idioma idioma)
{
    const auto hallado = std::ranges::lower_bound(tablaMensajes(), numero, {}, &Mensaje::numero);
    if (hallado == tablaMensajes().end() || hallado->numero != numero)
        return {};
    return idioma == Idioma::Castellano ? hallado->castellano : hallado->euskera;
}
