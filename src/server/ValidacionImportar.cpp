#include "server/ValidacionImportar.h"

#include "server/LectorRegistro.h"
#include "server/Sentencia.h"
#include "server/ValidacionDeclarante.h"

#include <array>

namespace servidor {

namespace {

/// Beyond the rules of the form: the codes have to exist, and the number to be one.
enum ReglaImportar : qint16 {
    ReglaVia = ReglaTelefono + 1,
    ReglaProvinciaDesconocida,
    ReglaMunicipioDesconocido,
    ReglaNumero,
    ReglasTotal = ReglaNumero
};

struct Texto
{
    QStringView castellano;
    QStringView euskara;
};

constexpr std::array<Texto, ReglasTotal> Textos{{
    {u"El campo DNI-CIF es erróneo o carece de dígito de control.",
     u"NA-IFK eremua okerra da edo ez du kontrol digiturik"},
    {u"La casilla Razón Social debe tener algún valor",
     u"Sozietatearen Izena laukian balioren bat jarri behar da"},
    {u"La casilla Domicilio debe tener algún valor",
     u"Helbidea laukian balioren bat jarri behar da"},
    {u"La casilla Código de Provincia debe tener algún valor.",
     u"Probintzia kodeari buruzko laukian balioren bat jarri behar da"},
    {u"El Código de Provincia y el Código Postal no coinciden",
     u"Probintzia kodea eta Posta kodea ez datoz bat"},
    {u"El Código Postal debe ser un número de 5 cifras.",
     u"Posta kodeak bost zifrako zenbakia izan behar du"},
    {u"Los tres últimos dígitos del Código Postal deben ser distintos de cero.",
     u"Posta kodearen azken hiru digituak zeroz bestekoak izango dira"},
    {u"El Código Postal debe ser distinto de cero.", u"Posta kodea zeroz bestekoa izango da"},
    {u"La casilla Código de Municipio debe tener algún valor.",
     u"Udalerri kodeari buruzko laukian balioren bat jarri behar da"},
    {u"La casilla Municipio debe tener algún valor.",
     u"Udalerria laukian balioren bat jarri behar da"},
    {u"El Teléfono debe ser un número de 9 cifras", u"Telefonoak 9 zifrako zenbakia izan behar du"},
    {u"La casilla Teléfono debe tener algún valor.",
     u"Telefonoa laukian balioren bat jarri behar da"},
    {u"No existe ese tipo de vía.", u"Ez dago horrelako bide motarik"},
    {u"No existe ese código de provincia.", u"Ez dago horrelako probintzia koderik"},
    {u"No existe ese código de municipio.", u"Ez dago horrelako udalerri koderik"},
    {u"El número de la calle debe ser un número.", u"Kaleko zenbakiak zenbakia izan behar du"},
}};

Registro datosValidacion(const Registro &registro)
{
    using namespace RegDeclarante;
    Registro datos;
    for (const Campo campo : {DNI, NOMBRE, DOMICILIO, CODPROV, CODPOS, CODMUN, NOMMUN, TELEFONO})
        datos += registro[campo].toString();
    return datos;
}

template <class T> bool existe(const PConexion &consulta, const char *sql, const T &codigo)
{
    return Sentencia(consulta, sql).con(codigo).fila();
}

QList<qint16> codigosDesconocidos(const PConexion &consulta, const Registro &registro)
{
    using namespace RegDeclarante;
    QList<qint16> rotas;
    const qint64 provincia = registro[CODPROV].toString().trimmed().toInt();
    const qint64 municipio = registro[CODMUN].toString().trimmed().toInt();
    if (!existe(consulta, "SELECT 1 FROM T07_SIGLASVIA WHERE T07_CODIGO = ?",
                normalizado(registro[VIA].toString())))
        rotas += ReglaVia;
    // A code that is not there at all is told by the rules of the form.
    if (provincia > 0 && provincia <= Provincias
        && !existe(consulta, "SELECT 1 FROM T05_PROVINCIAS WHERE T05_PRO_ID = ?", provincia))
        rotas += ReglaProvinciaDesconocida;
    if (provincia == ProvinciaPropia && municipio > 0
        && !existe(consulta, "SELECT 1 FROM T06_MUNICIPIOS WHERE T06_CODMUN = ?", municipio))
        rotas += ReglaMunicipioDesconocido;
    LectorRegistro lector(registro, Total);
    lector.codigo(NUMERO, 99'999);
    if (!lector.valido())
        rotas += ReglaNumero;
    return rotas;
}

} // namespace

Filas hallazgosImportar(const PConexion &consulta, const Registro &registro, qint16 idioma)
{
    LectorRegistro(registro, RegDeclarante::Total).exigirValido();
    const QList<qint16> rotas
        = reglasRotas(datosValidacion(registro), servidor::Telefono::PuedeFaltar)
        + codigosDesconocidos(consulta, registro);
    Filas filas;
    for (const qint16 regla : rotas) {
        const Texto &texto = Textos[static_cast<std::size_t>(regla - 1)];
        const QStringView elegido = idioma == 0 ? texto.castellano : texto.euskara;
        filas.append(QVariant(QVariantList{elegido.toString()}));
    }
    return filas;
}

} // namespace servidor
