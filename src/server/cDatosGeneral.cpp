#include "server/cDatosGeneral.h"

#include "dataservice/ErrorDatos.h"
#include "server/ListaLectura.h"
#include "server/Prueba.h"
#include "server/Sentencia.h"

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

constexpr qsizetype Bandas = 2; // of an annual return

// One that is damaged counts as never set: the program asks again, or does not do it.
QString leerAjuste(const QString &ruta, const QString &clave)
{
    static const std::string sql
        = "SELECT VALOR FROM AJUSTES WHERE CLAVE = ? AND " + probadaAjustes().bien();
    Sentencia sentencia(Conexion::datos(ruta), sql);
    return sentencia.con(clave).fila() ? sentencia.texto(0) : QString();
}

void guardarAjuste(const QString &ruta, const QString &clave, const QString &valor)
{
    Transaccion transaccion(Conexion::datos(ruta));
    const TablaProbada &t = probadaAjustes();
    static const std::string sql = "INSERT OR REPLACE INTO AJUSTES (" + t.columnas
        + ", PRUEBA) VALUES (" + t.parametros() + ", " + t.valorParametros() + ")";
    Sentencia(transaccion.conexion(), sql).con(clave, valor).ejecutar();
    transaccion.confirmar();
}

const QString &claveIdioma()
{
    static const QString clave = u"IDIOMA"_s;
    return clave;
}

const QString &claveActOnline()
{
    static const QString clave = u"ACTONLINE"_s;
    return clave;
}

QString nombre(const QString &ruta, const char *sql, const QString &codigo)
{
    Sentencia sentencia(Conexion::lectura(ruta), sql);
    return sentencia.con(codigo.toInt()).fila() ? sentencia.texto(0) : QString();
}

float porcentaje(qint64 centesimas)
{
    return static_cast<float>(static_cast<double>(centesimas) / 100);
}

} // namespace

qint32 cDatosGeneral::NumeroDeclarantes()
{
    Sentencia sentencia(Conexion::datos(m_ruta), "SELECT count(*) FROM DECLARANTES");
    sentencia.filaDebida();
    return sentencia.clave(0);
}

void cDatosGeneral::CambiarIdioma(const QString &codigo)
{
    const bool euskara = codigo == u"E";
    guardarAjuste(m_ruta, claveIdioma(), euskara ? u"E"_s : u"C"_s);
}

QString cDatosGeneral::ObtenerIdioma()
{
    return leerAjuste(m_ruta, claveIdioma());
}

void cDatosGeneral::GuardarActOnline(qint16 valor)
{
    guardarAjuste(m_ruta, claveActOnline(), QString::number(valor));
}

qint16 cDatosGeneral::ObtenerActOnline()
{
    return leerAjuste(m_ruta, claveActOnline()).toShort();
}

void cDatosGeneral::DameEjerPerMinMax(Registro &limites)
{
    Sentencia sentencia(Conexion::lectura(m_ruta),
                        "SELECT T08_EJERMIN, T08_EJERMAX, T08_PERMIN, T08_PERMAX FROM T08_GENERAL");
    sentencia.filaDebida();
    limites = {sentencia.clave(0), sentencia.clave(1), sentencia.clave(2), sentencia.clave(3)};
}

void cDatosGeneral::ObtenerNombreProvincia(const QString &codigo, QString &nombreProvincia,
                                           qint16 idioma)
{
    nombreProvincia = nombre(m_ruta,
                             idiomaDe(idioma) == Idioma::Castellano
                                 ? "SELECT T05_PRO_CAS FROM T05_PROVINCIAS WHERE T05_PRO_ID = ?"
                                 : "SELECT T05_PRO_EUS FROM T05_PROVINCIAS WHERE T05_PRO_ID = ?",
                             codigo);
}

void cDatosGeneral::ObtenerNombreMunicipio(const QString &codigo, QString &nombreMunicipio)
{
    nombreMunicipio
        = nombre(m_ruta, "SELECT T06_NOMMUN FROM T06_MUNICIPIOS WHERE T06_CODMUN = ?", codigo);
}

void cDatosGeneral::CargarProvincias(const QString &sql, Filas &filas)
{
    filas = listaLectura(Conexion::lectura(m_ruta), sql);
}

void cDatosGeneral::CargarMunicipios(const QString &sql, Filas &filas)
{
    filas = listaLectura(Conexion::lectura(m_ruta), sql);
}

void cDatosGeneral::CargarVias(const QString &sql, Filas &filas)
{
    filas = listaLectura(Conexion::lectura(m_ruta), sql);
}

void cDatosGeneral::ObtenerTipoAnual(Registro &tipos, qint16 ejercicio)
{
    // The rate in force in January and those that begin later in the year.
    Sentencia sentencia(Conexion::lectura(m_ruta),
                        "SELECT T09_TIPO FROM T09_TIPOS WHERE T09_DESDE <= ?1 * 100 + 12 "
                        "AND T09_DESDE >= coalesce((SELECT max(T09_DESDE) FROM T09_TIPOS "
                        "WHERE T09_DESDE <= ?1 * 100 + 1), 0) ORDER BY T09_DESDE");
    sentencia.con(ejercicio);
    Registro leidos;
    while (sentencia.fila())
        leidos += porcentaje(sentencia.entero(0));
    if (leidos.size() > Bandas)
        throw ErrorDatos(Fallo::TiposDeMas, QString::number(ejercicio));
    if (leidos.isEmpty())
        leidos += 0.0F;
    tipos = leidos;
}

float cDatosGeneral::ObtenerTipoImpositivo(qint16 ejercicio, quint8 periodo)
{
    Sentencia sentencia(Conexion::lectura(m_ruta),
                        "SELECT T09_TIPO FROM T09_TIPOS WHERE T09_DESDE <= ? * 100 + ? "
                        "ORDER BY T09_DESDE DESC LIMIT 1");
    return sentencia.con(ejercicio, periodo).fila() ? porcentaje(sentencia.entero(0)) : 0.0F;
}

QString cDatosGeneral::URLAct()
{
    Sentencia sentencia(Conexion::lectura(m_ruta), "SELECT T08_URLACT FROM T08_GENERAL");
    sentencia.filaDebida();
    return sentencia.texto(0);
}

} // namespace servidor
