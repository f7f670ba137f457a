#include "server/AlmacenDeclaraciones.h"

#include "dataservice/ErrorDatos.h"
#include "dataservice/Registros.h"
#include "server/AlmacenDeclarantes.h"
#include "server/Danados.h"
#include "server/LectorRegistro.h"

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

using Clase = Modelo::Clase;

std::vector<Modelo::Columna> columnas430()
{
    return {
        {"RECTIFICA", Clase::Marca},  {"BASELIQ", Clase::Importe}, {"TIPOLIQ", Clase::Tipo},
        {"CUOTALIQ", Clase::Importe}, {"BASEREC", Clase::Importe}, {"CUOTAREC", Clase::Importe},
        {"BASETOT", Clase::Importe},  {"TIPOTOT", Clase::Tipo},    {"CUOTATOT", Clase::Importe}};
}

std::string nombreCasilla(int casilla)
{
    return {'C', static_cast<char>('0' + casilla / 10), static_cast<char>('0' + casilla % 10)};
}

std::vector<Modelo::Columna> columnas480()
{
    std::vector<Modelo::Columna> columnas(Reg480::C70_TOT);
    for (int clase = 0; clase < Reg480::Clases; ++clase)
        for (const int columna : {0, 1})
            columnas[static_cast<std::size_t>(Reg480::posicion(clase, columna))]
                = {nombreCasilla(Reg480::casilla(clase, columna)), Clase::Importe};
    for (const int casilla : Reg480::Liquidacion)
        columnas.push_back({nombreCasilla(casilla),
                            casilla == 74 || casilla == 77 ? Clase::Tipo : Clase::Importe});
    return columnas;
}

} // namespace

Modelo::Modelo(const QString &codigoModelo, qint32 periodicidadModelo, qsizetype figuraListada,
               std::vector<Columna> columnasModelo)
    : codigo(codigoModelo)
    , periodicidad(periodicidadModelo)
    , listado(figuraListada)
    , columnas(std::move(columnasModelo))
    , probada{"DATOS" + codigo.toStdString(), "CSDE", {}}
    , borrar("DELETE FROM " + probada.nombre + " WHERE CSDE = ?")
{
    const std::string &tabla = probada.nombre;
    std::string nombres, definiciones;
    for (const Columna &columna : columnas) {
        nombres += columna.nombre + ", ";
        probada.columnas += ", " + columna.nombre;
        definiciones += ", " + columna.nombre
            + (columna.clase == Clase::Marca ? " TEXT NOT NULL" : " INTEGER NOT NULL");
    }
    crear = "CREATE TABLE " + tabla + " (CSDE INTEGER PRIMARY KEY REFERENCES DECLARACIONES (CSDE)"
        + definiciones + ") STRICT;";
    guardar = "INSERT OR REPLACE INTO " + tabla + " (" + probada.columnas + ", PRUEBA) VALUES ("
        + probada.parametros() + ", " + probada.valorParametros() + ")";
    leer = "SELECT " + nombres + probada.bien() + " FROM " + tabla + " WHERE CSDE = ?";
}

const Modelo &modelo430()
{
    static const Modelo modelo(Modelo430, PeriodicidadMensual, Reg430::CUOTATOT, columnas430());
    return modelo;
}

const Modelo &modelo480()
{
    static const Modelo modelo(Modelo480, PeriodicidadAnual, Reg480::C81_RES, columnas480());
    return modelo;
}

const Modelo *modeloDe(const QString &codigo)
{
    for (const Modelo *modelo : {&modelo430(), &modelo480()})
        if (modelo->codigo == codigo)
            return modelo;
    return nullptr;
}

namespace {

using namespace RegGuardar;

constexpr qint32 ClaveMaxima = std::numeric_limits<qint32>::max();

struct Cabecera
{
    qint32 csde, csco, ejercicio, periodicidad, periodo, tipologia;
    QString modelo;
};

Cabecera leerCabecera(LectorRegistro &lector)
{
    return {.csde = lector.entero(CSDE, 0, ClaveMaxima),
            .csco = lector.entero(CSCO, 1, ClaveMaxima),
            .ejercicio = lector.entero(EJERCICIO, 1, 9999),
            .periodicidad = lector.entero(PERIODICIDAD, PeriodicidadMensual, PeriodicidadAnual),
            .periodo = lector.entero(PERIODO, 1, UltimoMes),
            .tipologia = lector.entero(TIPOLOGIA, Tipologia430, Tipologia480),
            .modelo = lector.texto(MODELO)};
}

bool esDelModelo(const Cabecera &cabecera, const Modelo &modelo)
{
    const bool anual = modelo.periodicidad == PeriodicidadAnual;
    return cabecera.modelo == modelo.codigo && cabecera.periodicidad == modelo.periodicidad
        && cabecera.tipologia == modelo.periodicidad
        && (!anual || cabecera.periodo == PeriodoAnual);
}

QVariantList leerFiguras(LectorRegistro &lector, const Modelo &modelo)
{
    QVariantList figuras;
    qsizetype campo = Figuras;
    for (const auto &columna : modelo.columnas) {
        switch (columna.clase) {
        case Modelo::Clase::Marca:
            figuras += lector.texto(campo);
            break;
        case Modelo::Clase::Importe:
            figuras += lector.importe(campo);
            break;
        case Modelo::Clase::Tipo:
            figuras += lector.tipo(campo);
            break;
        }
        ++campo;
    }
    return figuras;
}

/// False when there is no such return; throws RegistroDanado.
bool cabeceraBien(const PConexion &conexion, qint32 CSDE)
{
    static const std::string sql
        = "SELECT " + probadaDeclaraciones().bien() + " FROM DECLARACIONES WHERE CSDE = ?";
    Sentencia fila(conexion, sql);
    if (!fila.con(CSDE).fila())
        return false;
    if (!filaBien(fila))
        declaracionDanada(conexion, CSDE);
    return true;
}

/// The key of the new header, 0 when there is such a return already.
qint32 insertarCabecera(const PConexion &conexion, const Cabecera &cabecera, qint64 importe)
{
    const TablaProbada &t = probadaDeclaraciones();
    static const std::string sql = "INSERT INTO DECLARACIONES (" + t.columnas + ", PRUEBA) SELECT "
        + t.parametros() + ", " + t.valorParametros()
        + " WHERE true ON CONFLICT (CSCO, EJERCICIO, PERIODO, MODELO) DO NOTHING";
    const qint32 clave = siguienteClave(conexion, t);
    Sentencia sentencia(conexion, sql);
    sentencia.con(clave, cabecera.csco, cabecera.ejercicio, cabecera.periodicidad, cabecera.periodo,
                  cabecera.modelo, cabecera.tipologia, importe);
    return sentencia.ejecutar() == 0 ? 0 : clave;
}

/// The key of the return, 0 when its stored header is another one than `cabecera`.
qint32 actualizarCabecera(const PConexion &conexion, const Cabecera &cabecera, qint64 importe)
{
    if (!cabeceraBien(conexion, cabecera.csde))
        sinDeclaracion(nombreCabecera(cabecera.modelo, cabecera.ejercicio, cabecera.periodo));
    // the parameters are all that the value is made of
    static const std::string sql = "UPDATE DECLARACIONES SET IMPORTE = ?8, PRUEBA = "
        + probadaDeclaraciones().valorParametros()
        + " WHERE CSDE = ?1 AND CSCO = ?2 AND EJERCICIO = ?3 AND PERIODICIDAD = ?4 "
          "AND PERIODO = ?5 AND MODELO = ?6 AND TIPOLOGIA = ?7";
    Sentencia sentencia(conexion, sql);
    sentencia.con(cabecera.csde, cabecera.csco, cabecera.ejercicio, cabecera.periodicidad,
                  cabecera.periodo, cabecera.modelo, cabecera.tipologia, importe);
    return sentencia.ejecutar() == 0 ? 0 : cabecera.csde;
}

void guardarFiguras(const PConexion &conexion, const Modelo &modelo, qint32 CSDE,
                    const QVariantList &figuras)
{
    if (Sentencia antes(conexion, modelo.leer); antes.con(CSDE).fila() && !filaBien(antes))
        declaracionDanada(conexion, CSDE);
    Sentencia sentencia(conexion, modelo.guardar);
    int indice = 1;
    sentencia.ligar(indice, CSDE);
    for (const QVariant &figura : figuras) {
        ++indice;
        if (figura.typeId() == QMetaType::QString)
            sentencia.ligar(indice, figura.toString());
        else
            sentencia.ligar(indice, figura.toLongLong());
    }
    sentencia.ejecutar();
}

/// A return as it is stored: nothing when the record is malformed or of another model.
struct Declaracion
{
    const Modelo &modelo;
    Cabecera cabecera;
    QVariantList figuras;

    static std::optional<Declaracion> leer(const Modelo &modelo, const Registro &datos)
    {
        LectorRegistro lector(datos, Figuras + static_cast<qsizetype>(modelo.columnas.size()));
        Declaracion leida{modelo, leerCabecera(lector), leerFiguras(lector, modelo)};
        if (!lector.valido() || !esDelModelo(leida.cabecera, modelo))
            return {};
        return leida;
    }
};

/// The key of the return, 0 when it was refused.
qint32 guardarEn(const PConexion &conexion, const Declaracion &declaracion)
{
    const Cabecera &cabecera = declaracion.cabecera;
    const qint64 importe = declaracion.figuras[declaracion.modelo.listado].toLongLong();
    const qint32 clave = cabecera.csde == 0 ? insertarCabecera(conexion, cabecera, importe)
                                            : actualizarCabecera(conexion, cabecera, importe);
    if (clave != 0)
        guardarFiguras(conexion, declaracion.modelo, clave, declaracion.figuras);
    return clave;
}

qint32 guardarDelConjunto(const PConexion &conexion, const Registro &datos)
{
    const Modelo *modelo = modeloDe(datos.value(MODELO).toString());
    const auto leida = modelo ? Declaracion::leer(*modelo, datos) : std::nullopt;
    if (!leida)
        return 0;
    try {
        return guardarEn(conexion, *leida);
    } catch (const ErrorDatos &error) {
        // its return is not there, or its declarant, as the foreign key tells, or what is stored of
        // it is damaged; nothing was written
        if (error.fallo() != Fallo::SinDeclaracion && error.fallo() != Fallo::TieneDeclaraciones
            && error.fallo() != Fallo::RegistroDanado)
            throw;
        return 0;
    }
}

} // namespace

qint32 guardarDeclaracion(const QString &ruta, const Modelo &modelo, const Registro &datos)
{
    const auto leida = Declaracion::leer(modelo, datos);
    if (!leida)
        return 0;
    Transaccion transaccion(Conexion::datos(ruta));
    marcarReciente(transaccion.conexion(), leida->cabecera.csco);
    const qint32 clave = guardarEn(transaccion.conexion(), *leida);
    if (clave != 0)
        transaccion.confirmar();
    return clave;
}

Registro guardarDeclaraciones(const QString &ruta, const Filas &registros, bool todoONada)
{
    Transaccion transaccion(Conexion::datos(ruta));
    Registro claves;
    claves.reserve(registros.size());
    for (const QVariant &registro : registros) {
        claves.append(guardarDelConjunto(transaccion.conexion(), registro.toList()));
        if (todoONada && claves.constLast() == 0)
            return Registro(registros.size(), 0);
    }
    transaccion.confirmar();
    return claves;
}

Registro cargarFiguras(const PConexion &conexion, const Modelo &modelo, qint32 CSDE)
{
    Sentencia sentencia(conexion, modelo.leer);
    if (!cabeceraBien(conexion, CSDE) || !sentencia.con(CSDE).fila())
        sinDeclaracion();
    if (!filaBien(sentencia))
        declaracionDanada(conexion, CSDE);
    Registro figuras;
    int columna = 0;
    for (const auto &definicion : modelo.columnas) {
        switch (definicion.clase) {
        case Modelo::Clase::Marca:
            figuras += sentencia.texto(columna);
            break;
        case Modelo::Clase::Importe:
            figuras += static_cast<double>(sentencia.entero(columna));
            break;
        case Modelo::Clase::Tipo:
            figuras += static_cast<float>(static_cast<double>(sentencia.entero(columna)) / 100);
            break;
        }
        ++columna;
    }
    return figuras;
}

void sinDeclaracion(const QString &nombre)
{
    throw ErrorDatos(Fallo::SinDeclaracion, nombre);
}

} // namespace servidor
