#include "help/TemasAyuda.h"

#include "core/Textos.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

static void cargarRecursos()
{
    Q_INIT_RESOURCE(ayuda);
}

namespace ayuda {

static QString ruta(const QString &nombre)
{
    cargarRecursos();
    return u":/ayuda/"_s + elegir(u"c/"_s, u"e/"_s) + nombre;
}

static QString leer(const QString &nombre)
{
    QFile fichero(ruta(nombre));
    return fichero.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichero.readAll()) : QString();
}

static QString entre(const QString &html, const QString &antes, const QString &despues)
{
    const auto desde = html.indexOf(antes);
    const auto hasta = html.indexOf(despues, desde + antes.size());
    return desde < 0 || hasta < 0 ? QString()
                                  : html.mid(desde + antes.size(), hasta - desde - antes.size());
}

static Tema tomar(const QString &nombre)
{
    static const QRegularExpression marcas(u"<[^>]*>"_s);
    const QString html = leer(nombre);
    Tema tema{nombre, entre(html, u"<title>"_s, u"</title>"_s), {}, {}};
    tema.claves = entre(html, u"name=\"keywords\" content=\""_s, u"\""_s).split(u"; "_s);
    tema.texto = html.mid(html.indexOf(u"<body>"_s)).replace(marcas, u" "_s).simplified();
    return tema;
}

QString portada()
{
    return elegir(u"cap.htm"_s, u"kap.htm"_s);
}

QString direccion(const QString &nombre)
{
    return u"qrc"_s + ruta(QFile::exists(ruta(nombre)) ? nombre : portada());
}

QList<Tema> temas()
{
    static const QRegularExpression enlaces(u"href=\"([^\"]+)\""_s);
    QList<Tema> todos{tomar(portada())};
    const QString html = leer(portada());
    for (const auto &enlace : enlaces.globalMatch(html))
        todos.append(tomar(enlace.captured(1)));
    return todos;
}

QString plegar(const QString &texto)
{
    QString plegado = texto.toLower().normalized(QString::NormalizationForm_D);
    plegado.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    return plegado;
}

QList<Entrada> indice()
{
    QList<Entrada> entradas;
    for (const Tema &tema : temas()) {
        for (const QString &clave : tema.claves)
            entradas.append({clave, tema.nombre});
    }
    std::ranges::stable_sort(entradas, {}, [](const Entrada &e) { return plegar(e.texto); });
    return entradas;
}

QList<Entrada> buscar(const QString &palabras)
{
    const QStringList buscadas = plegar(palabras).split(u' ', Qt::SkipEmptyParts);
    QList<Entrada> hallados;
    if (buscadas.isEmpty())
        return hallados;
    for (const Tema &tema : temas()) {
        const QString texto
            = plegar(tema.titulo + u' ' + tema.texto + u' ' + tema.claves.join(u' '));
        const auto esta = [&](const QString &palabra) { return texto.contains(palabra); };
        if (std::ranges::all_of(buscadas, esta))
            hallados.append({tema.titulo, tema.nombre});
    }
    std::stable_partition(hallados.begin(), hallados.end(), [&](const Entrada &e) {
        return plegar(e.texto).contains(buscadas.first());
    });
    return hallados;
}

QString temaDePantalla(const QString &pantalla)
{
    const QString nombre = pantalla.toLower() + u".htm"_s;
    return !pantalla.isEmpty() && QFile::exists(ruta(nombre)) ? nombre : QString();
}

} // namespace ayuda
