#include "declarants/CamposDeclarante.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace campos {

using D = cDecDatos;
using enum RegDeclarante::Campo;
namespace V = RegValidacion;

// clang-format off
constexpr std::array<Definicion, Cuantos> tabla{{
    {DNI,       u"DNI",       u"DNI",                       Clase::Texto,     9,   1,  9, Texto{&D::DNI, &D::DNI}, V::DNI},
    {NOMBRE,    u"NOMBRE",    u"NOMBRE",                    Clase::Texto,    40,  10, 40, Texto{&D::NOMBRE, &D::NOMBRE}, V::NOMBRE},
    {VIA,       u"VIA",       u"SIGLAS",                    Clase::Texto,     2,  50,  2, Texto{&D::VIA, &D::VIA}},
    {DOMICILIO, u"DOMICILIO", u"DOMICILIO",                 Clase::Texto,    20,  52, 30, Texto{&D::DOMICILIO, &D::DOMICILIO}, V::DOMICILIO},
    {NUMERO,    u"NUMERO",    u"NUMERO",                    Clase::Numero,    5,  82,  5, Numero{&D::NUMERO, &D::NUMERO}},
    {LETRA,     u"LETRA",     u"LETRA",                     Clase::Texto,     2,  87,  2, Texto{&D::LETRA, &D::LETRA}},
    {ESCALERA,  u"ESCALERA",  u"ESCALERA",                  Clase::Texto,     2,  89,  2, Texto{&D::ESCALERA, &D::ESCALERA}},
    {PISO,      u"PISO",      u"PISO",                      Clase::Texto,     2,  91,  2, Texto{&D::PISO, &D::PISO}},
    {MANO,      u"MANO",      u"MANO",                      Clase::Texto,     3,  93,  3, Texto{&D::MANO, &D::MANO}},
    {CODPROV,   u"CODPROV",   u"CODIGO PROVINCIA",          Clase::Codigo,    2,  96,  2, Texto{&D::CODPROV, &D::CODPROV}, V::CODPROV},
    {CODPOS,    u"CODPOS",    u"CODIGO POSTAL",             Clase::Codigo,    5,  98,  5, Texto{&D::CODPOS, &D::CODPOS}, V::CODPOS},
    {CODMUN,    u"CODMUN",    u"CODIGO MUNICIPIO",          Clase::Codigo,    3, 103,  3, Texto{&D::CODMUN, &D::CODMUN}, V::CODMUN},
    // spelled so in the description that other programs compare with
    {NOMMUN,    u"NOMMUN",    u"NOMBRE MUNICIOPIO",         Clase::Texto,    25, 106, 25, Texto{&D::NOMMUN, &D::NOMMUN}, V::NOMMUN},
    {TELEFONO,  u"TELEFONO",  u"TELEFONO",                  Clase::Telefono,  9, 131,  9, Texto{&D::TELEFONO, &D::TELEFONO}, V::TELEFONO},
    {NUM430,    u"NUM430",    u"NUMERO DECLARACIONES 430",  Clase::Contador,  7, 140,  7, Contador{&D::NUM430, &D::NUM430}},
    {NUM480,    u"NUM480",    u"NUMERO DECLARACIONES 480",  Clase::Contador,  7, 147,  7, Contador{&D::NUM480, &D::NUM480}},
}};
// clang-format on

/// Row after row, without a gap, in the order of the record.
static constexpr bool seguidos()
{
    int campo = DNI;
    int columna = 1;
    for (const Definicion &d : tabla) {
        if (d.campo != campo++ || d.columna != columna)
            return false;
        columna += d.anchoFichero;
    }
    return columna == AnchoLinea + 1;
}
static_assert(seguidos());

const Definicion &definicion(Campo campo)
{
    return tabla.at(static_cast<size_t>(campo - DNI));
}

const Definicion &deValidacion(int elemento)
{
    return *std::ranges::find(tabla, elemento, &Definicion::validacion);
}

bool soloCifras(Clase clase)
{
    return clase == Clase::Numero || clase == Clase::Codigo || clase == Clase::Contador;
}

QString leer(Campo campo, const cDecDatos &datos)
{
    const auto &propiedad = definicion(campo).propiedad;
    if (const auto *texto = std::get_if<Texto>(&propiedad))
        return (datos.*texto->leer)();
    if (const auto *numero = std::get_if<Numero>(&propiedad))
        return QString::number((datos.*numero->leer)());
    return QString::number((datos.*std::get<Contador>(propiedad).leer)(), 'f', 0);
}

void escribir(Campo campo, cDecDatos &datos, const QString &valor)
{
    const auto &propiedad = definicion(campo).propiedad;
    if (const auto *texto = std::get_if<Texto>(&propiedad))
        (datos.*texto->escribir)(valor);
    else if (const auto *numero = std::get_if<Numero>(&propiedad))
        (datos.*numero->escribir)(valor.toInt());
    else
        (datos.*std::get<Contador>(propiedad).escribir)(valor.toDouble());
}

static QString sinCeros(const QString &texto)
{
    const int numero = texto.toInt();
    return numero == 0 ? QString() : QString::number(numero);
}

QString valor(Campo campo, const QString &texto)
{
    const auto &d = definicion(campo);
    switch (d.clase) {
    case Clase::Numero:
    case Clase::Contador:
        return sinCeros(texto);
    case Clase::Codigo: {
        const QString cifras = campo == CODMUN ? sinCeros(texto) : texto;
        return cifras.isEmpty() ? cifras : cifras.rightJustified(d.ancho, u'0');
    }
    case Clase::Texto:
    case Clase::Telefono:
        break;
    }
    return texto.toUpper();
}

bool tomar(Campo campo, cDecDatos &datos, const QString &texto)
{
    const QString nuevo = valor(campo, texto);
    if (nuevo == valor(campo, leer(campo, datos)))
        return false;
    escribir(campo, datos, nuevo);
    return true;
}

} // namespace campos
