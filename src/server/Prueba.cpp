#include "server/Prueba.h"

#include "server/AlmacenDeclaraciones.h"

#include <QtEndian>

#include <algorithm>
#include <sqlite3.h>
#include <string_view>

namespace servidor {

namespace {

// Each step can be undone, whichever of the two is given: one bit that differs stays a difference.
quint64 mezclar(quint64 valor, quint64 palabra)
{
    valor = (valor ^ palabra) * 0x9E37'79B9'7F4A'7C15U;
    return valor ^ (valor >> 32);
}

quint64 mezclarTexto(quint64 valor, std::string_view texto)
{
    constexpr std::size_t Palabra = sizeof(quint64);
    for (; texto.size() >= Palabra; texto.remove_prefix(Palabra))
        valor = mezclar(valor, qFromLittleEndian<quint64>(texto.data()));
    if (texto.empty())
        return valor;
    std::array<char, Palabra> resto{};
    std::ranges::copy(texto, resto.begin());
    return mezclar(valor, qFromLittleEndian<quint64>(resto.data()));
}

/// A whole number counts as it is; anything else with its kind and its length in front.
quint64 mezclarValor(quint64 valor, sqlite3_value *dato)
{
    const int clase = sqlite3_value_type(dato);
    if (clase == SQLITE_INTEGER)
        return mezclar(valor, static_cast<quint64>(sqlite3_value_int64(dato)));
    // as UTF-8, whatever the file's header says of its texts
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_value_text(dato));
    const auto largo = static_cast<std::size_t>(sqlite3_value_bytes(dato));
    valor = mezclar(valor, static_cast<quint64>(clase) << 56 | largo);
    return bytes ? mezclarTexto(valor, {bytes, largo}) : valor;
}

// 62 bits: what is added to it must not leave the whole numbers of SQLite.
void calcularPrueba(sqlite3_context *contexto, int cuantos, sqlite3_value **datos)
{
    quint64 valor = 0;
    for (int i = 0; i < cuantos; ++i)
        valor = mezclarValor(valor, datos[i]);
    sqlite3_result_int64(contexto, static_cast<qint64>(valor >> 2));
}

quint64 *sumaDe(sqlite3_context *contexto)
{
    return static_cast<quint64 *>(sqlite3_aggregate_context(contexto, sizeof(quint64)));
}

void sumar(sqlite3_context *contexto, int /*cuantos*/, sqlite3_value **datos)
{
    if (quint64 *suma = sumaDe(contexto)) // zero at first
        *suma += static_cast<quint64>(sqlite3_value_int64(datos[0]));
}

void terminarSuma(sqlite3_context *contexto)
{
    const quint64 *suma = sumaDe(contexto);
    sqlite3_result_int64(contexto, suma ? static_cast<qint64>(*suma) : 0);
}

std::string producto(int factor, const char *columna)
{
    return " + " + std::to_string(factor) + " * " + columna;
}

} // namespace

std::string TablaProbada::parametros() const
{
    std::string lista = "?1";
    const auto cuantas = std::ranges::count(columnas, ',') + 1;
    for (std::ptrdiff_t i = 2; i <= cuantas; ++i)
        lista += ", ?" + std::to_string(i);
    return lista;
}

std::string TablaProbada::de(const std::string &valores) const
{
    return "prueba('" + nombre + "', " + valores + ")";
}

const TablaProbada &probadaDeclarantes()
{
    static const TablaProbada tabla{
        "DECLARANTES",
        "CSCO, DNI, NOMBRE, VIA, DOMICILIO, NUMERO, LETRA, ESCALERA, PISO, MANO, CODPROV, CODPOS, "
        "CODMUN, NOMMUN, TELEFONO, CLAVE",
        producto(Factor430, "NUM430") + producto(Factor480, "NUM480")
            + producto(FactorReciente, "RECIENTE")};
    return tabla;
}

const TablaProbada &probadaDeclaraciones()
{
    static const TablaProbada tabla{
        "DECLARACIONES",
        "CSDE, CSCO, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA, IMPORTE",
        {}};
    return tabla;
}

const TablaProbada &probadaAjustes()
{
    static const TablaProbada tabla{"AJUSTES", "CLAVE, VALOR", {}};
    return tabla;
}

const std::array<const TablaProbada *, 5> &tablasProbadas()
{
    static const std::array<const TablaProbada *, 5> tablas{
        &probadaDeclarantes(), &probadaDeclaraciones(), &probadaAjustes(), &modelo430().probada,
        &modelo480().probada};
    return tablas;
}

void registrarPrueba(SQLite::Database &base)
{
    base.createFunction("prueba", -1, true, nullptr, calcularPrueba, nullptr, nullptr, nullptr);
    base.createFunction("suma", 1, true, nullptr, nullptr, sumar, terminarSuma, nullptr);
}

} // namespace servidor
