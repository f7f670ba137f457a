#pragma once

#include <QList>
#include <QString>

/// The topics of the help, in the session's language: one HTML file each, of the same name in both
/// languages but for the contents page.
namespace ayuda {

struct Tema
{
    QString nombre; ///< file name: "frmdatos430.htm"
    QString titulo;
    QStringList claves; ///< under which the index lists it
    QString texto; ///< what there is to read, without marks
};

/// A line of the index or of the results of a search.
struct Entrada
{
    QString texto;
    QString tema; ///< file name
};

/// File name of the contents page.
QString portada();
/// Address of a topic for a text browser; that of the contents page when there is no such topic.
QString direccion(const QString &nombre);
/// Every topic, in the order of the contents page, which comes first.
QList<Tema> temas();
/// The key words of all topics, in alphabetical order.
QList<Entrada> indice();
/// The topics that contain all these words, wherever, case and accents ignored; those with the
/// first word in their title come first.
QList<Entrada> buscar(const QString &palabras);
/// The topic of the screen with this objectName; empty when it has none of its own.
QString temaDePantalla(const QString &pantalla);
/// Lower case without accents.
QString plegar(const QString &texto);

} // namespace ayuda
