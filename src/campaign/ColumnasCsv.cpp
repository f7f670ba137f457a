#include "campaign/ColumnasCsv.h"

#include "core/Busqueda.h"
#include "core/Csv.h"
#include "core/Textos.h"
#include "declarations/Clases480.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Nombres
{
    ColumnaCsv::Que que;
    QStringView castellano, euskera;
};

constexpr Nombres Tabla[] = {
    {ColumnaCsv::Dni, u"DNI", u"NA_IFK"},
    {ColumnaCsv::Dni, u"NIF", u"IFZ"},
    {ColumnaCsv::Ejercicio, u"EJERCICIO", u"EKITALDIA"},
    {ColumnaCsv::Periodo, u"PERIODO", u"ZERGALDIA"},
    {ColumnaCsv::Base, u"BASE", u"OINARRIA"},
    {ColumnaCsv::BaseRectificacion, u"BASE_RECTIFICACION", u"ZUZENKETA_OINARRIA"},
    {ColumnaCsv::CuotaRectificacion, u"CUOTA_RECTIFICACION", u"ZUZENKETA_KUOTA"},
};
constexpr Nombres ParaPersonas[] = {
    {ColumnaCsv::Ninguna, u"NOMBRE", u"IZENA"},
    {ColumnaCsv::Ninguna, u"MOTIVO", u"ARRAZOIA"},
};

bool sonNombre(const Nombres &nombres, const QString &plegado)
{
    return nombres.castellano == plegado || nombres.euskera == plegado;
}

/// "base rectificación" is BASE_RECTIFICACION.
QString normal(const QString &titulo)
{
    return busqueda::plegar(titulo.simplified()).replace(u' ', u'_').replace(u'-', u'_');
}

/// False when the heading means nothing.
bool reconocer(ColumnaCsv &columna)
{
    const QString nombre = normal(columna.titulo);
    const auto es = [&](const Nombres &una) { return sonNombre(una, nombre); };
    if (const auto *hallada = std::ranges::find_if(Tabla, es); hallada != std::end(Tabla)) {
        columna.que = hallada->que;
        return true;
    }
    bool esNumero = false;
    const int numero = nombre.toInt(&esNumero);
    if (esNumero && casillaEntrada(numero)) {
        columna.que = ColumnaCsv::Casilla;
        columna.casilla = numero;
        return true;
    }
    return nombre.isEmpty() || std::ranges::any_of(ParaPersonas, es);
}

/// Those who wrote the file chose it; the one that makes most of the heading is it.
char separadorDe(QByteArrayView linea)
{
    static constexpr std::array candidatos{';', ',', '\t'};
    return *std::ranges::max_element(candidatos, {},
                                     [&](char c) { return std::ranges::count(linea, c); });
}

QString comprobar(EncabezadoCsv &encabezado)
{
    QStringList vistas;
    for (ColumnaCsv &columna : encabezado.columnas) {
        if (!reconocer(columna))
            return msj(Msj::CsvColumnaDesconocida, columna.titulo);
        const QString clave = u"%1/%2"_s.arg(columna.que).arg(columna.casilla);
        if (columna.que != ColumnaCsv::Ninguna && vistas.contains(clave))
            return msj(Msj::CsvColumnaRepetida, columna.titulo);
        vistas += clave;
    }
    const bool de480 = encabezado.lugar(ColumnaCsv::Casilla) >= 0;
    const bool de430 = encabezado.lugar(ColumnaCsv::Base) >= 0;
    if (de480
        && (de430 || encabezado.lugar(ColumnaCsv::BaseRectificacion) >= 0
            || encabezado.lugar(ColumnaCsv::CuotaRectificacion) >= 0))
        return msj(Msj::CsvDosModelos);
    encabezado.modelo = de480 ? Modelo480 : Modelo430;
    QList<ColumnaCsv::Que> debidas{ColumnaCsv::Dni, ColumnaCsv::Ejercicio};
    if (!de480)
        debidas += {ColumnaCsv::Periodo, ColumnaCsv::Base};
    for (const auto que : std::as_const(debidas))
        if (encabezado.lugar(que) < 0)
            return msj(Msj::CsvFaltaColumna, tituloColumna(que));
    return {};
}

} // namespace

qsizetype EncabezadoCsv::lugar(ColumnaCsv::Que que) const
{
    const auto hallada = std::ranges::find(columnas, que, &ColumnaCsv::que);
    return hallada == columnas.end() ? -1 : hallada - columnas.begin();
}

EncabezadoCsv leerEncabezado(QByteArrayView linea)
{
    if (linea.startsWith(csv::Marca))
        linea = linea.sliced(csv::Marca.size());
    EncabezadoCsv encabezado;
    encabezado.separador = separadorDe(linea);
    const auto titulos = csv::partir(linea, encabezado.separador, MaximoColumnasCsv);
    if (!titulos) {
        encabezado.motivo = msj(Msj::CsvSinEncabezado);
        return encabezado;
    }
    for (const QString &titulo : *titulos)
        encabezado.columnas.append({ColumnaCsv::Ninguna, 0, titulo});
    encabezado.motivo = comprobar(encabezado);
    return encabezado;
}

static QString titulo(const Nombres &nombres)
{
    return elegir(nombres.castellano.toString(), nombres.euskera.toString());
}

QString tituloColumna(ColumnaCsv::Que que)
{
    return titulo(*std::ranges::find(Tabla, que, &Nombres::que));
}

QString tituloNombre()
{
    return titulo(ParaPersonas[0]);
}

QString tituloMotivo()
{
    return titulo(ParaPersonas[1]);
}
