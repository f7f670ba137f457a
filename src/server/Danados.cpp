#include "server/Danados.h"

#include "dataservice/Registros.h"
#include "server/AlmacenDeclaraciones.h"
#include "server/AlmacenDeclarantes.h"
#include "server/Esquemas.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

constexpr qsizetype MaximoNombrados = 5;

QString texto(SQLite::Statement &fila, int columna)
{
    return QString::fromStdString(fila.getColumn(columna).getString());
}

bool esSencillo(const QString &texto)
{
    return std::ranges::all_of(texto, [](QChar c) { return c.unicode() < 0x80; });
}

} // namespace

DeclaranteSeguro declaranteSeguro(SQLite::Database &base, qint32 CSCO)
{
    static const std::string sql = "SELECT " + probadaDeclarantes().bien()
        + ", DNI, NOMBRE, CLAVE, EXISTS (SELECT 1 FROM DECLARANTES I INDEXED BY "
          "sqlite_autoindex_DECLARANTES_1 WHERE I.DNI = D.DNI AND I.CSCO = D.CSCO) "
          "FROM DECLARANTES D WHERE CSCO = ?";
    SQLite::Statement fila(base, sql);
    fila.bind(1, CSCO);
    if (!fila.executeStep())
        return {};
    const bool bien = fila.getColumn(0).getInt() != 0;
    DeclaranteSeguro seguro{texto(fila, 1), texto(fila, 2)};
    if (!bien && fila.getColumn(4).getInt() == 0)
        seguro.dni.clear();
    // a name with accents has more than one spelling to the same sort key
    if (!bien && (seguro.nombre != texto(fila, 3) || !esSencillo(seguro.nombre)))
        seguro.nombre.clear();
    return seguro;
}

// The index of the returns holds a second copy of what tells one from another. It is right when the
// table says the same, or when the rest of the row matches its value with it.
CabeceraSegura cabeceraSegura(SQLite::Database &base, qint32 CSDE)
{
    static const std::string sql
        = "SELECT I.CSCO, I.EJERCICIO, I.PERIODO, I.MODELO, R.PRUEBA = prueba('DECLARACIONES', "
          "R.CSDE, I.CSCO, I.EJERCICIO, R.PERIODICIDAD, I.PERIODO, I.MODELO, R.TIPOLOGIA, "
          "R.IMPORTE) OR (I.CSCO, I.EJERCICIO, I.PERIODO, I.MODELO) "
          "= (R.CSCO, R.EJERCICIO, R.PERIODO, R.MODELO) "
          "FROM DECLARACIONES R NOT INDEXED, (SELECT CSCO, EJERCICIO, PERIODO, MODELO FROM "
          "DECLARACIONES INDEXED BY sqlite_autoindex_DECLARACIONES_1 WHERE +CSDE = ?1) I "
          "WHERE R.CSDE = ?1";
    SQLite::Statement fila(base, sql);
    fila.bind(1, CSDE);
    if (!fila.executeStep() || fila.getColumn(4).getInt() == 0)
        return {};
    const CabeceraSegura segura{fila.getColumn(0).getInt(), fila.getColumn(1).getInt(),
                                fila.getColumn(2).getInt(), texto(fila, 3)};
    return modeloDe(segura.modelo) ? segura : CabeceraSegura{};
}

CabeceraSegura cabeceraSegura(const PConexion &conexion, qint32 CSDE)
{
    return conErroresDe(*conexion, [&] { return cabeceraSegura(conexion->base(), CSDE); });
}

QString nombreDeclarante(SQLite::Database &base, qint32 CSCO)
{
    const auto [dni, nombre] = declaranteSeguro(base, CSCO);
    return nombreDanado({CSCO, dni, nombre});
}

QString nombreCabecera(const QString &modelo, qint32 ejercicio, qint32 periodo)
{
    const QString anno = u"%1 %2"_s.arg(modelo).arg(ejercicio);
    return modelo == Modelo480 ? anno : anno + u"-%1"_s.arg(periodo, 2, 10, QChar(u'0'));
}

QString nombreDeclaracion(SQLite::Database &base, qint32 CSDE)
{
    const auto [csco, ejercicio, periodo, modelo] = cabeceraSegura(base, CSDE);
    if (modelo.isEmpty())
        return nombreDeclaracionDanada(CSDE);
    return nombreDeclarante(base, csco) + u": "_s + nombreCabecera(modelo, ejercicio, periodo);
}

void declaranteDanado(const PConexion &conexion, qint32 CSCO)
{
    throw ErrorDatos(Fallo::RegistroDanado, conErroresDe(*conexion, [&] {
                         return nombreDeclarante(conexion->base(), CSCO);
                     }));
}

void declaracionDanada(const PConexion &conexion, qint32 CSDE)
{
    throw ErrorDatos(Fallo::RegistroDanado, conErroresDe(*conexion, [&] {
                         return nombreDeclaracion(conexion->base(), CSDE);
                     }));
}

namespace {

/// What one passage over a table or an index comes to. What is to be found in two places is added
/// up in both, as a hash an entry, in whatever order they lie.
struct Pasada
{
    QList<qint32> malas;
    std::array<qint64, 3> sumas{};
};

/// `sumas`: up to three expressions.
Pasada recorrer(SQLite::Database &base, const TablaProbada &tabla, const std::string &clave,
                const std::string &sumas)
{
    const std::string bien = tabla.bien();
    const std::string mala = '(' + bien + ") IS NOT TRUE";
    const std::string de = " FROM " + tabla.nombre + " NOT INDEXED";
    Pasada pasada;
    SQLite::Statement todas(base, "SELECT suma(" + mala + "), " + sumas + de);
    todas.executeStep();
    for (int i = 1; i < todas.getColumnCount(); ++i)
        pasada.sumas.at(static_cast<std::size_t>(i - 1)) = todas.getColumn(i).getInt64();
    if (todas.getColumn(0).getInt64() == 0)
        return pasada;
    SQLite::Statement fila(base, "SELECT " + clave + de + " WHERE " + mala);
    while (fila.executeStep())
        pasada.malas += fila.getColumn(0).getInt();
    return pasada;
}

qint64 sumaIndice(SQLite::Database &base, const std::string &suma, const std::string &tabla,
                  const std::string &indice)
{
    return base.execAndGet("SELECT " + suma + " FROM " + tabla + " INDEXED BY " + indice)
        .getInt64();
}

template <class Nombrar>
void nombrar(QStringList &nombres, const QList<qint32> &malas, Nombrar nombre)
{
    for (const qint32 clave : malas)
        if (nombres.size() <= MaximoNombrados)
            nombres += nombre(clave);
}

void exigirNinguno(const QStringList &nombres)
{
    if (nombres.isEmpty())
        return;
    QStringList distintos = nombres;
    distintos.removeDuplicates();
    if (distintos.size() > MaximoNombrados)
        distintos = distintos.first(MaximoNombrados) + QStringList{u"…"_s};
    throw ErrorDatos(Fallo::RegistroDanado, distintos.join(u"; "_s));
}

} // namespace

namespace {

constexpr const char *IndiceDni = "sqlite_autoindex_DECLARANTES_1";
const std::string deDni = "suma(prueba(DNI, CSCO))";

void exigirJuntas(bool juntas, const QString &ruta)
{
    if (!juntas)
        throw ErrorDatos(Fallo::Danada, ruta, u"its tables and indexes do not agree"_s);
}

// A new key is one more than its counter, and has to fit in 31 bits.
bool contadoresBien(SQLite::Database &base)
{
    return base.execAndGet("SELECT count(*) FROM sqlite_sequence WHERE name NOT IN "
                           "('DECLARANTES', 'DECLARACIONES') OR typeof(seq) <> 'integer' OR seq < "
                           "CASE name WHEN 'DECLARANTES' THEN (SELECT max(CSCO) FROM DECLARANTES) "
                           "ELSE (SELECT max(CSDE) FROM DECLARACIONES) END OR seq > 2147483647")
               .getInt()
        == 0;
}

} // namespace

void comprobarDnis(SQLite::Database &base, const QString &ruta)
{
    conErrores(ruta, [&] {
        const auto enTabla
            = base.execAndGet("SELECT " + deDni + " FROM DECLARANTES NOT INDEXED").getInt64();
        exigirJuntas(enTabla == sumaIndice(base, deDni, "DECLARANTES", IndiceDni), ruta);
    });
}

bool recorrerTodas(const PConexion &conexion, const TablaProbada &tabla, std::string_view sql,
                   const std::function<bool(const Sentencia &)> &visitar)
{
    const LecturaUnica lectura(conexion);
    Sentencia fila(conexion, sql);
    qint64 leidas = 0;
    for (; fila.fila(); ++leidas)
        if (!visitar(fila))
            return false;
    Sentencia entradas(conexion,
                       "SELECT count(*) FROM " + tabla.nombre + " INDEXED BY sqlite_autoindex_"
                           + tabla.nombre + "_1");
    entradas.filaDebida();
    exigirJuntas(entradas.entero(0) == leidas, conexion->ruta());
    return true;
}

std::string cuadran()
{
    return "NUM430 + NUM480 = (SELECT count(*) FROM DECLARACIONES R INDEXED BY "
           "sqlite_autoindex_DECLARACIONES_1 WHERE R.CSCO = D.CSCO)";
}

void exigirCuenta(const PConexion &conexion, qint32 CSCO)
{
    static const std::string sql = "SELECT " + cuadran() + ", " + probadaDeclarantes().bien()
        + " FROM DECLARANTES D WHERE CSCO = ?";
    Sentencia fila(conexion, sql);
    if (fila.con(CSCO).fila() && filaBien(fila)) // a damaged declarant is told as such
        exigirJuntas(fila.entero(0) == 1, conexion->ruta());
}

void comprobarFilas(SQLite::Database &base, const QString &ruta)
{
    static const std::string deReciente = "suma(prueba(RECIENTE, CSCO))",
                             deUnica = "suma(prueba(CSCO, EJERCICIO, PERIODO, MODELO, CSDE))";
    comprobarEsquema(base, ruta);
    conErrores(ruta, [&] {
        const auto declarantes = recorrer(base, probadaDeclarantes(), "CSCO",
                                          deDni + ", " + deReciente
                                              + ", suma(NUM430 * (prueba('430', CSCO) & 1073741823)"
                                                " + NUM480 * (prueba('480', CSCO) & 1073741823))");
        const auto cabeceras = recorrer(base, probadaDeclaraciones(), "CSDE",
                                        deUnica
                                            + ", suma(prueba(MODELO, CSDE))"
                                              ", suma(prueba(MODELO, CSCO) & 1073741823)");
        QStringList nombres;
        nombrar(nombres, declarantes.malas,
                [&](qint32 clave) { return nombreDeclarante(base, clave); });
        QList<qint32> malas = cabeceras.malas;
        quint64 figuras = 0;
        for (const Modelo *modelo : {&modelo430(), &modelo480()}) {
            const auto pasada
                = recorrer(base, modelo->probada, "CSDE",
                           "suma(prueba('" + modelo->codigo.toStdString() + "', CSDE))");
            malas += pasada.malas;
            figuras += static_cast<quint64>(pasada.sumas[0]);
        }
        nombrar(nombres, malas, [&](qint32 clave) { return nombreDeclaracion(base, clave); });
        exigirNinguno(nombres);
        const bool juntas = static_cast<qint64>(figuras) == cabeceras.sumas[1]
            && declarantes.sumas[2] == cabeceras.sumas[2]
            && declarantes.sumas[0] == sumaIndice(base, deDni, "DECLARANTES", IndiceDni)
            && declarantes.sumas[1]
                == sumaIndice(base, deReciente, "DECLARANTES", "DECLARANTES_RECIENTE")
            && cabeceras.sumas[0]
                == sumaIndice(base, deUnica, "DECLARACIONES", "sqlite_autoindex_DECLARACIONES_1");
        exigirJuntas(juntas && contadoresBien(base), ruta);
    });
}

} // namespace servidor
