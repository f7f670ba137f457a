#include "server/Esquemas.h"

#include "dataservice/ErrorDatos.h"
#include "server/AlmacenDeclaraciones.h"
#include "server/Comprobacion.h"
#include "server/FicherosBase.h"
#include "server/Prueba.h"

#include <QFile>
#include <QStringList>

#include <SQLiteCpp/Statement.h>
#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

// Schema 1. CLAVE is the sort key of the name, RECIENTE the order of the last saves (0: never
// counted). Keys are not used again after a deletion: a screen may still hold one. The names have
// no index: it would cost a large import half of its time, and putting 100,000 of them in order
// takes 0.1 s.
constexpr const char *TablasDatos = R"(
CREATE TABLE DECLARANTES (
    CSCO INTEGER PRIMARY KEY AUTOINCREMENT,
    DNI TEXT NOT NULL UNIQUE,
    NOMBRE TEXT NOT NULL,
    CLAVE TEXT NOT NULL,
    VIA TEXT NOT NULL,
    DOMICILIO TEXT NOT NULL,
    NUMERO INTEGER NOT NULL,
    LETRA TEXT NOT NULL,
    ESCALERA TEXT NOT NULL,
    PISO TEXT NOT NULL,
    MANO TEXT NOT NULL,
    CODPROV INTEGER NOT NULL,
    CODPOS TEXT NOT NULL,
    CODMUN INTEGER NOT NULL,
    NOMMUN TEXT NOT NULL,
    TELEFONO TEXT NOT NULL,
    NUM430 INTEGER NOT NULL DEFAULT 0,
    NUM480 INTEGER NOT NULL DEFAULT 0,
    RECIENTE INTEGER NOT NULL DEFAULT 0
) STRICT;
CREATE INDEX DECLARANTES_RECIENTE ON DECLARANTES (RECIENTE);

CREATE TABLE DECLARACIONES (
    CSDE INTEGER PRIMARY KEY AUTOINCREMENT,
    CSCO INTEGER NOT NULL REFERENCES DECLARANTES (CSCO),
    EJERCICIO INTEGER NOT NULL,
    PERIODICIDAD INTEGER NOT NULL,
    PERIODO INTEGER NOT NULL,
    MODELO TEXT NOT NULL,
    TIPOLOGIA INTEGER NOT NULL,
    IMPORTE INTEGER NOT NULL,
    UNIQUE (CSCO, EJERCICIO, PERIODO, MODELO)
) STRICT;

CREATE TRIGGER DECLARACION_ALTA AFTER INSERT ON DECLARACIONES BEGIN
    UPDATE DECLARANTES SET NUM430 = NUM430 + (NEW.MODELO = '430'),
                           NUM480 = NUM480 + (NEW.MODELO = '480') WHERE CSCO = NEW.CSCO;
END;
CREATE TRIGGER DECLARACION_BAJA AFTER DELETE ON DECLARACIONES BEGIN
    UPDATE DECLARANTES SET NUM430 = NUM430 - (OLD.MODELO = '430'),
                           NUM480 = NUM480 - (OLD.MODELO = '480') WHERE CSCO = OLD.CSCO;
END;

CREATE TABLE AJUSTES (
    CLAVE TEXT PRIMARY KEY,
    VALOR TEXT NOT NULL
) STRICT, WITHOUT ROWID;
)";

// Counted anew: the triggers of schema 1 had nothing to tell a wrong count by.
constexpr const char *Contadas = R"(
UPDATE DECLARANTES SET
    NUM430 = (SELECT count(*) FROM DECLARACIONES D WHERE D.CSCO = DECLARANTES.CSCO AND MODELO = '430'),
    NUM480 = (SELECT count(*) FROM DECLARACIONES D WHERE D.CSCO = DECLARANTES.CSCO AND MODELO = '480');
DROP TRIGGER DECLARACION_ALTA;
DROP TRIGGER DECLARACION_BAJA;
)";

/// Keeps the counters, and the value with them, after `cuando`; `fila` is NEW or OLD.
std::string disparador(const char *nombre, const char *cuando, const std::string &signo,
                       const std::string &fila)
{
    const auto cuenta
        = [&](const std::string &modelo) { return "(" + fila + ".MODELO = '" + modelo + "')"; };
    const auto prueba = [&](const std::string &modelo, int factor) {
        return signo + std::to_string(factor) + " * " + cuenta(modelo);
    };
    return std::string("CREATE TRIGGER ") + nombre + " AFTER " + cuando
        + " ON DECLARACIONES BEGIN UPDATE DECLARANTES SET NUM430 = NUM430" + signo + cuenta("430")
        + ", NUM480 = NUM480" + signo + cuenta("480") + ", PRUEBA = PRUEBA"
        + prueba("430", Factor430) + prueba("480", Factor480) + " WHERE CSCO = " + fila
        + ".CSCO; END;";
}

} // namespace

std::string sqlDesdeEsquema1()
{
    std::string sql = Contadas;
    for (const TablaProbada *tabla : tablasProbadas())
        sql += "ALTER TABLE " + tabla->nombre + " ADD COLUMN PRUEBA INTEGER NOT NULL DEFAULT 0;"
            + "UPDATE " + tabla->nombre + " SET PRUEBA = " + tabla->valor() + ";";
    return sql + disparador("DECLARACION_ALTA", "INSERT", " + ", "NEW")
        + disparador("DECLARACION_BAJA", "DELETE", " - ", "OLD");
}

namespace {

// A new one takes the steps of an old one, so that both are the same.
void llenarDatos(SQLite::Database &base)
{
    registrarPrueba(base);
    base.exec(TablasDatos);
    base.exec(modelo430().crear);
    base.exec(modelo480().crear);
    base.exec(sqlDesdeEsquema1());
}

} // namespace

void comprobarEsquema(SQLite::Database &base, const QString &ruta)
{
    SQLite::Database nuestra(":memory:", SQLite::OPEN_READWRITE);
    llenarDatos(nuestra);
    conErrores(ruta, [&] {
        SQLite::Statement debida(nuestra, "SELECT type, name, tbl_name, sql FROM sqlite_schema");
        SQLite::Statement hay(base,
                              "SELECT tbl_name = ?3 AND sql IS ?4 FROM sqlite_schema "
                              "WHERE type = ?1 AND name = ?2");
        for (; debida.executeStep(); hay.reset()) {
            hay.clearBindings();
            for (int i = 0; i < debida.getColumnCount(); ++i)
                if (!debida.getColumn(i).isNull()) // an index that comes with its table
                    hay.bind(i + 1, debida.getColumn(i).getString());
            if (!hay.executeStep())
                throw ErrorDatos(Fallo::Incompleta, ruta,
                                 u"a table, index or trigger is missing"_s);
            if (hay.getColumn(0).getInt() == 0)
                throw ErrorDatos(Fallo::Danada, ruta, u"a table, index or trigger is not ours"_s);
        }
    });
}

bool crearDatos(const QString &ruta)
{
    return crearFichero(ruta, FormatoDatos, Lugar::Vacio,
                        [](SQLite::Database &base) { llenarDatos(base); });
}

namespace {

constexpr const char *TablasLectura = R"(
CREATE TABLE T05_PROVINCIAS (
    T05_PRO_ID INTEGER PRIMARY KEY, T05_PRO_CAS TEXT NOT NULL, T05_PRO_EUS TEXT NOT NULL) STRICT;
CREATE TABLE T06_MUNICIPIOS (T06_CODMUN INTEGER PRIMARY KEY, T06_NOMMUN TEXT NOT NULL) STRICT;
CREATE TABLE T07_SIGLASVIA (
    T07_CODIGO TEXT PRIMARY KEY, T07_CAS TEXT NOT NULL, T07_EUS TEXT NOT NULL) STRICT;
CREATE TABLE T08_GENERAL (
    T08_EJERMIN INTEGER NOT NULL, T08_PERMIN INTEGER NOT NULL, T08_EJERMAX INTEGER NOT NULL,
    T08_PERMAX INTEGER NOT NULL, T08_URLACT TEXT NOT NULL, T08_BACKUP_TVC INTEGER NOT NULL) STRICT;
CREATE TABLE T09_TIPOS (
    T09_DESDE INTEGER PRIMARY KEY, -- exercise * 100 + period
    T09_TIPO INTEGER NOT NULL      -- hundredths of a percent
) STRICT;
)";

using Linea = QStringList;

QList<Linea> leer(const QString &nombre, qsizetype campos)
{
    QFile fichero(u":/lectura/%1.txt"_s.arg(nombre));
    if (!fichero.open(QIODevice::ReadOnly))
        throw ErrorDatos(Fallo::NoExiste, fichero.fileName());
    QList<Linea> lineas;
    for (const QString &linea : QString::fromUtf8(fichero.readAll()).split(u'\n')) {
        if (linea.trimmed().isEmpty() || linea.startsWith(u'#'))
            continue;
        lineas += linea.trimmed().split(u'|');
        if (lineas.last().size() != campos)
            throw ErrorDatos(Fallo::Danada, fichero.fileName(), linea);
    }
    return lineas;
}

// A STRICT column takes a text of digits as the number it is and refuses any other.
void insertar(SQLite::Database &base, const char *sql, const QList<Linea> &lineas)
{
    SQLite::Statement sentencia(base, sql);
    for (const Linea &linea : lineas) {
        for (qsizetype i = 0; i < linea.size(); ++i)
            sentencia.bind(static_cast<int>(i) + 1, linea[i].trimmed().toStdString());
        sentencia.exec();
        sentencia.reset();
    }
}

QList<Linea> tipos()
{
    QList<Linea> filas;
    for (const Linea &linea : leer(u"tipos"_s, 3)) {
        const int desde = linea[0].toInt() * 100 + linea[1].toInt();
        filas.append(
            {QString::number(desde), QString::number(std::lround(linea[2].toDouble() * 100))});
    }
    return filas;
}

// Keys in the order of the columns of T08_GENERAL.
Linea general()
{
    Linea fila(6);
    const QStringList claves{u"EJERMIN"_s, u"PERMIN"_s, u"EJERMAX"_s,
                             u"PERMAX"_s,  u"URLACT"_s, u"BACKUP_TVC"_s};
    for (const Linea &linea : leer(u"general"_s, 2))
        if (const qsizetype columna = claves.indexOf(linea[0]); columna >= 0)
            fila[columna] = linea[1];
    return fila;
}

void llenarLectura(SQLite::Database &base)
{
    base.exec(TablasLectura);
    insertar(base, "INSERT INTO T05_PROVINCIAS VALUES (?, ?, ?)", leer(u"provincias"_s, 3));
    insertar(base, "INSERT INTO T06_MUNICIPIOS VALUES (?, ?)", leer(u"municipios"_s, 2));
    insertar(base, "INSERT INTO T07_SIGLASVIA VALUES (?, ?, ?)", leer(u"siglasvia"_s, 3));
    insertar(base, "INSERT INTO T08_GENERAL VALUES (?, ?, ?, ?, ?, ?)", {general()});
    insertar(base, "INSERT INTO T09_TIPOS VALUES (?, ?)", tipos());
}

bool mismasFilas(SQLite::Database &una, SQLite::Database &otra, const std::string &tabla)
{
    const std::string sql = "SELECT * FROM " + tabla + " ORDER BY 1";
    SQLite::Statement filas(una, sql);
    SQLite::Statement otras(otra, sql);
    while (filas.executeStep()) {
        if (!otras.executeStep())
            return false;
        for (int columna = 0; columna < filas.getColumnCount(); ++columna)
            if (filas.getColumn(columna).getString() != otras.getColumn(columna).getString())
                return false;
    }
    return !otras.executeStep();
}

// The file is made from our texts alone: whatever differs from them is damage.
bool contieneLoNuestro(const QString &ruta, const Formato &formato)
{
    SQLite::Database nuestra(":memory:", SQLite::OPEN_READWRITE);
    llenarLectura(nuestra);
    try {
        auto guardada = abrirComprobada(ruta, formato);
        return std::ranges::all_of(
            std::array{"(SELECT name, sql FROM sqlite_schema)", "T05_PROVINCIAS", "T06_MUNICIPIOS",
                       "T07_SIGLASVIA", "T08_GENERAL", "T09_TIPOS"},
            [&](const char *tabla) { return mismasFilas(nuestra, guardada, tabla); });
    } catch (const SQLite::Exception &) {
        return false;
    }
}

bool sirve(const QString &ruta, const Formato &formato)
{
    try {
        return comprobarCabecera(ruta, formato, Version::ActualOMenor) == formato.esquema
            && contieneLoNuestro(ruta, formato);
    } catch (const ErrorDatos &error) {
        if (error.fallo() == Fallo::Danada)
            return false;
        throw;
    }
}

} // namespace

void prepararLectura(const QString &ruta, const Formato &formato)
{
    rechazarEnlaceRoto(ruta);
    const bool existe = QFile::exists(ruta);
    if (!existe || !sirve(ruta, formato))
        crearFichero(ruta, formato, existe ? Lugar::Ocupado : Lugar::Vacio, llenarLectura);
}

} // namespace servidor
