#include "core/Textos.h"
#include "widgets/Disposicion.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QSet>

namespace {

bool sirve(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

/// Position of the letter to underline: the first of a word, else any; -1 when all are taken.
qsizetype lugarLibre(const QString &texto, const QSet<QChar> &usadas)
{
    const auto libre = [&](qsizetype i) {
        return sirve(texto.at(i)) && !usadas.contains(texto.at(i).toUpper());
    };
    for (qsizetype i = 0; i < texto.size(); ++i)
        if ((i == 0 || texto.at(i - 1).isSpace()) && libre(i))
            return i;
    for (qsizetype i = 0; i < texto.size(); ++i)
        if (libre(i))
            return i;
    return -1;
}

void apuntar(QSet<QChar> &usadas, const QString &texto)
{
    const auto marca = texto.indexOf(u'&');
    if (marca >= 0 && marca + 1 < texto.size())
        usadas.insert(texto.at(marca + 1).toUpper());
}

template <class Elemento> void repartir(const QList<Elemento *> &elementos, QSet<QChar> &usadas)
{
    for (auto *elemento : elementos) {
        QString texto = elemento->text();
        if (texto.contains(u'&'))
            continue;
        const auto lugar = lugarLibre(texto, usadas);
        if (lugar < 0)
            continue;
        usadas.insert(texto.at(lugar).toUpper());
        elemento->setText(texto.insert(lugar, u'&'));
    }
}

/// The elements of this window, not those of a dialogue open over it.
template <class Elemento> QList<Elemento *> elementosDe(QWidget *pantalla)
{
    QList<Elemento *> elementos = pantalla->findChildren<Elemento *>();
    elementos.removeIf([pantalla](Elemento *e) { return e->window() != pantalla->window(); });
    return elementos;
}

} // namespace

void repartirAccesos(QWidget *pantalla)
{
    auto botones = elementosDe<QAbstractButton>(pantalla);
    botones.removeIf([](QAbstractButton *b) { return b->inherits("QToolButton"); });
    auto etiquetas = elementosDe<QLabel>(pantalla);
    etiquetas.removeIf([](QLabel *e) { return !e->buddy(); });

    QSet<QChar> usadas;
    for (const Msj menu : {Msj::MenuDeclarante, Msj::MenuUtilidades, Msj::MenuAyuda})
        apuntar(usadas, msj(menu));
    for (const auto *boton : std::as_const(botones))
        apuntar(usadas, boton->text());
    for (const auto *etiqueta : std::as_const(etiquetas))
        apuntar(usadas, etiqueta->text());
    repartir(botones, usadas);
    repartir(etiquetas, usadas);
}
