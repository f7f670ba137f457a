#include "server/AlmacenDeclarantes.h"

#include "dataservice/ClaveOrden.h"
#include "dataservice/ErrorDatos.h"
#include "server/Danados.h"
#include "server/Prueba.h"

#include <QCryptographicHash>

#include <algorithm>
#include <limits>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

using namespace RegDeclarante;

constexpr qint32 CodigoMunicipioMaximo = 999;

// Parameters 1 to 15 are CSCO to TELEFONO of the record, 16 the sort key: the columns of
// probadaDeclarantes in their order.
std::string alta()
{
    const TablaProbada &t = probadaDeclarantes();
    return "INSERT INTO DECLARANTES (" + t.columnas + ", PRUEBA) VALUES (" + t.parametros() + ", "
        + t.valorParametros() + ") ON CONFLICT (DNI) DO NOTHING";
}

// Not over a row that is not as it was written.
std::string cambio()
{
    const TablaProbada &t = probadaDeclarantes();
    return "UPDATE DECLARANTES SET (" + t.columnas + ", PRUEBA) = (" + t.parametros() + ", "
        + t.valorParametros() + t.cuentas + ") WHERE CSCO = ?1 AND " + t.bien();
}

std::string claveDelNombre(const std::string &nombre)
{
    const bool sencillo
        = std::ranges::all_of(nombre, [](char c) { return static_cast<uchar>(c) < 0x80; });
    return sencillo ? nombre : claveOrden(QString::fromStdString(nombre)).toStdString();
}

QString nombreDe(const DatosDeclarante &datos)
{
    return QString::fromStdString(datos.textos[DNI] + " - " + datos.textos[NOMBRE]);
}

// What the form keeps from being typed, but a caller may still hand in.
bool admisible(const DatosDeclarante &datos)
{
    return !datos.textos[DNI].empty() && datos.codigo(CODMUN).value_or(0) <= CodigoMunicipioMaximo;
}

bool dniDeOtro(const PConexion &conexion, const DatosDeclarante &datos)
{
    return Sentencia(conexion, "SELECT 1 FROM DECLARANTES WHERE DNI = ? AND CSCO <> ?")
        .con(datos.textos[DNI], datos.csco)
        .fila();
}

// A code with its figures, empty when there is none.
QString codigo(qint64 valor, qsizetype cifras)
{
    if (valor == 0)
        return {};
    QString texto(cifras, u'0');
    for (qsizetype i = cifras; i > 0; valor /= 10)
        texto[--i] = QChar(u'0' + static_cast<int>(valor % 10));
    return texto;
}

} // namespace

// Told before the row is written, whose check value it enters into. As SQLite does by itself: not
// used again after a deletion.
qint32 siguienteClave(const PConexion &conexion, const TablaProbada &tabla)
{
    const std::string clave = tabla.columnas.substr(0, tabla.columnas.find(','));
    Sentencia sentencia(conexion,
                        "SELECT 1 + max((SELECT coalesce(max(seq), 0) FROM sqlite_sequence WHERE "
                        "name = '"
                            + tabla.nombre + "'), (SELECT coalesce(max(" + clave + "), 0) FROM "
                            + tabla.nombre + "))");
    sentencia.filaDebida();
    const qint64 siguiente = sentencia.entero(0);
    if (siguiente > std::numeric_limits<qint32>::max())
        throw ErrorDatos(Fallo::Danada, conexion->ruta(), u"no keys are left"_s);
    return static_cast<qint32>(siguiente);
}

EscrituraDeclarante::EscrituraDeclarante(const PConexion &conexion, Clase clase)
    : m_conexion(conexion)
    , m_sentencia(conexion, sentencia(clase))
    , m_siguiente(clase == Clase::Alta ? siguienteClave(conexion, probadaDeclarantes()) : 0)
{
}

const std::string &EscrituraDeclarante::sentencia(Clase clase)
{
    static const std::string sentencias[] = {alta(), cambio()};
    return sentencias[static_cast<int>(clase)];
}

bool EscrituraDeclarante::escribir(const DatosDeclarante &datos)
{
    const qint32 clave = m_siguiente != 0 ? m_siguiente : datos.csco;
    m_sentencia.ligar(1, clave);
    for (int i = DNI; i <= TELEFONO; ++i) {
        const auto campo = static_cast<Campo>(i);
        if (!DatosDeclarante::esCodigo(campo))
            m_sentencia.ligarFijo(i + 1, datos.textos[campo]);
        else if (const auto codigo = datos.codigo(campo))
            m_sentencia.ligar(i + 1, *codigo);
        else
            throw std::invalid_argument("a code is no number");
    }
    m_clave = claveDelNombre(datos.textos[NOMBRE]);
    m_sentencia.ligarFijo(TELEFONO + 2, m_clave);
    const bool escrito = m_sentencia.ejecutar() > 0;
    if (m_siguiente != 0)
        m_siguiente += escrito ? 1 : 0;
    else if (!escrito)
        exigirBien(m_conexion, clave);
    return escrito;
}

void exigirBien(const PConexion &conexion, qint32 CSCO)
{
    static const std::string sql
        = "SELECT " + probadaDeclarantes().bien() + " FROM DECLARANTES WHERE CSCO = ?";
    Sentencia fila(conexion, sql);
    if (fila.con(CSCO).fila() && !filaBien(fila))
        declaranteDanado(conexion, CSCO);
}

qint32 claveDeDni(const PConexion &conexion, const std::string &dni)
{
    static const std::string sql
        = "SELECT CSCO, " + probadaDeclarantes().bien() + " FROM DECLARANTES WHERE DNI = ?";
    Sentencia fila(conexion, sql);
    if (!fila.con(dni).fila()) {
        conexion->comprobarDnis();
        return 0;
    }
    if (!filaBien(fila)) // the row, or the entry of the index that led to it
        declaranteDanado(conexion, fila.clave(0));
    return fila.clave(0);
}

Guardado guardarDeclarante(const PConexion &conexion, const Registro &registro)
{
    const DatosDeclarante datos = DatosDeclarante::de(registro);
    if (!admisible(datos))
        return Guardado::NoValido;
    const bool nuevo = datos.csco == 0;
    if (!nuevo && dniDeOtro(conexion, datos))
        return Guardado::CambioDniExiste;
    using enum EscrituraDeclarante::Clase;
    if (!EscrituraDeclarante(conexion, nuevo ? Alta : Cambio).escribir(datos)) {
        if (nuevo)
            return Guardado::AltaDniExiste;
        sinDeclarante(nombreDe(datos));
    }
    marcarReciente(conexion, nuevo ? conexion->ultimaClave() : datos.csco);
    return Guardado::Hecho;
}

void marcarReciente(const PConexion &conexion, qint32 CSCO)
{
    static const std::string sql = "UPDATE DECLARANTES SET (RECIENTE, PRUEBA) = (N, PRUEBA + "
        + std::to_string(FactorReciente)
        + " * (N - RECIENTE)) FROM (SELECT 1 + max(RECIENTE) AS N FROM DECLARANTES) WHERE CSCO = ?";
    Sentencia sentencia(conexion, sql);
    if (sentencia.con(CSCO).ejecutar() == 0)
        sinDeclarante();
}

std::string seleccionDeclarante(std::string_view resto)
{
    static const std::string todo
        = "SELECT CSCO, DNI, NOMBRE, VIA, DOMICILIO, NUMERO, LETRA, ESCALERA, PISO, "
          "MANO, CODPROV, CODPOS, CODMUN, NOMMUN, TELEFONO, NUM430, NUM480, "
        + probadaDeclarantes().bien() + " FROM DECLARANTES ";
    return todo + std::string(resto);
}

bool filaBien(const Sentencia &fila)
{
    return fila.entero(fila.columnas() - 1) == 1;
}

Registro registroDeclarante(const Sentencia &fila)
{
    Registro registro;
    registro.reserve(Total);
    for (int campo = CSCO; campo < Total; ++campo) {
        switch (campo) {
        case CSCO:
        case NUMERO:
            registro += fila.clave(campo);
            break;
        case CODPROV:
            registro += codigo(fila.entero(campo), 2);
            break;
        case CODMUN:
            registro += codigo(fila.entero(campo), 3);
            break;
        case NUM430:
        case NUM480:
            registro += static_cast<double>(fila.entero(campo));
            break;
        default:
            registro += fila.texto(campo);
        }
    }
    return registro;
}

Registro registroListado(const PConexion &conexion, const Sentencia &fila)
{
    if (filaBien(fila))
        return registroDeclarante(fila);
    return registroDanado(conexion, fila.clave(CSCO));
}

Registro registroDanado(const PConexion &conexion, qint32 CSCO)
{
    return conErroresDe(*conexion, [&]() -> Registro {
        const auto [dni, nombre] = declaranteSeguro(conexion->base(), CSCO);
        return {CSCO, dni, nombre};
    });
}

QByteArray huella(const Registro &registro)
{
    QCryptographicHash resumen(QCryptographicHash::Sha256);
    for (const QVariant &campo : registro)
        resumen.addData(campo.toString().toUtf8() + '\0');
    return resumen.result();
}

void sinDeclarante(const QString &nombre)
{
    throw ErrorDatos(Fallo::SinDeclarante, nombre);
}

} // namespace servidor
