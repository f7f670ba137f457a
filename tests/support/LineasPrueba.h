#pragma once

#include "dataservice/ConjuntoDeclarantes.h"

#include <QFile>
#include <QString>

using namespace Qt::StringLiterals;

/// Lines of the exchange file for tests.
namespace lineas {

/// A valid tax identifier for each number.
inline QString dni(int numero)
{
    return QString::number(numero).rightJustified(8, u'0')
        + u"TRWAGMYFPDXBNJZSQVHLCKE"_s.at(numero % 23);
}

/// A valid line without its end; 153 bytes.
inline QByteArray linea(int numero, const QByteArray &nombre = "SEGUROS")
{
    return dni(numero).toLatin1() + nombre.leftJustified(40, ' ') + "CL"
        + QByteArray("MAYOR").leftJustified(30) + "00007" + "A " + "1 " + "2 " + "DCH" + "20"
        + "20123" + "001" + QByteArray("ABRENZUOLA").leftJustified(25) + "943123456" + "0000000"
        + "0000000";
}

inline QByteArray fichero(int primera, int ultima)
{
    QByteArray todas;
    for (int numero = primera; numero <= ultima; ++numero)
        todas += linea(numero) + "\r\n";
    return todas;
}

/// The texts of a set's first declarant.
inline QStringList textos(const ConjuntoDeclarantes &conjunto)
{
    QStringList todos;
    for (int campo = RegDeclarante::DNI; campo <= RegDeclarante::TELEFONO; ++campo) {
        const auto texto = conjunto.texto(0, static_cast<RegDeclarante::Campo>(campo));
        todos += QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
    }
    return todos;
}

inline void escribir(const QString &ruta, const QByteArray &contenido)
{
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(contenido) != contenido.size())
        qFatal("cannot write %s", qPrintable(ruta));
}

inline QByteArray leer(const QString &ruta)
{
    QFile fichero(ruta);
    return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray("not there");
}

/// The description of the format, as it ends an error file.
inline QByteArray formato()
{
    QByteArray texto("FORMATO: \r\n");
    for (const char *campo :
         {"DNI(9)", "NOMBRE(40)", "SIGLAS(2)", "DOMICILIO(30)", "NUMERO(5)", "LETRA(2)",
          "ESCALERA(2)", "PISO(2)", "MANO(3)", "CODIGO PROVINCIA(2)", "CODIGO POSTAL(5)",
          "CODIGO MUNICIPIO(3)", "NOMBRE MUNICIOPIO(25)", "TELEFONO(9)",
          "NUMERO DECLARACIONES 430(7)", "NUMERO DECLARACIONES 480(7)"})
        texto += QByteArray(9, ' ') + campo + "\r\n";
    return texto;
}

} // namespace lineas
