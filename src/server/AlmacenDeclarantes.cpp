#include "server/AlmacenDeclarantes.h"

#include "dataservice/ClaveOrden.h"
#include "dataservice/ErrorDatos.h"

#include <QCryptographicHash>

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

using namespace RegDeclarante;

constexpr qint32 CodigoMunicipioMaximo = 999;

// Parameters 1 to 15 are CSCO to TELEFONO of the record, 16 the sort key.
constexpr const char *Alta = R"(
INSERT INTO DECLARANTES (DNI, NOMBRE, VIA, DOMICILIO, NUMERO, LETRA, ESCALERA, PISO, MANO, CODPROV,
    CODPOS, CODMUN, NOMMUN, TELEFONO, CLAVE)
VALUES (?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15, ?16)
ON CONFLICT (DNI) DO NOTHING)";

constexpr const char *Cambio = R"(
UPDATE DECLARANTES SET DNI = ?2, NOMBRE = ?3, VIA = ?4, DOMICILIO = ?5, NUMERO = ?6, LETRA = ?7,
    ESCALERA = ?8, PISO = ?9, MANO = ?10, CODPROV = ?11, CODPOS = ?12, CODMUN = ?13, NOMMUN = ?14,
    TELEFONO = ?15, CLAVE = ?16 WHERE CSCO = ?1)";

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

EscrituraDeclarante::EscrituraDeclarante(const PConexion &conexion, Clase clase)
    : m_sentencia(conexion, clase == Clase::Alta ? Alta : Cambio)
{
}

bool EscrituraDeclarante::escribir(const DatosDeclarante &datos)
{
    m_sentencia.ligar(1, datos.csco);
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
    return m_sentencia.ejecutar() > 0;
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
    Sentencia sentencia(conexion,
                        "UPDATE DECLARANTES SET RECIENTE = 1 + (SELECT max(RECIENTE) FROM "
                        "DECLARANTES) WHERE CSCO = ?");
    if (sentencia.con(CSCO).ejecutar() == 0)
        sinDeclarante();
}

std::string seleccionDeclarante(std::string_view resto)
{
    return std::string("SELECT CSCO, DNI, NOMBRE, VIA, DOMICILIO, NUMERO, LETRA, ESCALERA, PISO, "
                       "MANO, CODPROV, CODPOS, CODMUN, NOMMUN, TELEFONO, NUM430, NUM480 "
                       "FROM DECLARANTES ")
        .append(resto);
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
