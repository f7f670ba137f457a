#include "server/AlmacenDeclarantes.h"

#include "dataservice/ErrorDatos.h"
#include "server/LectorRegistro.h"
#include "server/ListaLectura.h"
#include "server/ValidacionDeclarante.h"

#include <QCryptographicHash>

#include <optional>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

using namespace RegDeclarante;

constexpr qint32 ClaveMaxima = std::numeric_limits<qint32>::max();
constexpr qint32 CodigoMunicipioMaximo = 999;

// Parameters 1 to 15 are CSCO to TELEFONO of the record, 16 the sort key.
constexpr const char *Alta = R"(
INSERT INTO DECLARANTES (DNI, NOMBRE, VIA, DOMICILIO, NUMERO, LETRA, ESCALERA, PISO, MANO, CODPROV,
    CODPOS, CODMUN, NOMMUN, TELEFONO, CLAVE)
SELECT ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15, ?16 WHERE ?1 = 0
ON CONFLICT (DNI) DO NOTHING)";

constexpr const char *Cambio = R"(
UPDATE DECLARANTES SET DNI = ?2, NOMBRE = ?3, VIA = ?4, DOMICILIO = ?5, NUMERO = ?6, LETRA = ?7,
    ESCALERA = ?8, PISO = ?9, MANO = ?10, CODPROV = ?11, CODPOS = ?12, CODMUN = ?13, NOMMUN = ?14,
    TELEFONO = ?15, CLAVE = ?16 WHERE CSCO = ?1)";

QVariantList leerCampos(const Registro &registro)
{
    LectorRegistro lector(registro, Total);
    QVariantList campos;
    for (qsizetype campo = CSCO; campo <= TELEFONO; ++campo) {
        switch (campo) {
        case CSCO:
            campos += lector.entero(campo, 0, ClaveMaxima);
            break;
        case NUMERO:
            campos += lector.codigo(campo, 99'999);
            break;
        case CODPROV:
            campos += lector.codigo(campo, 99);
            break;
        case CODMUN:
            campos += lector.codigo(campo, ClaveMaxima);
            break;
        default:
            campos += lector.texto(campo);
        }
    }
    lector.exigirValido();
    return campos;
}

void ligarCampos(Sentencia &sentencia, const QVariantList &campos)
{
    int indice = 0;
    for (const QVariant &campo : campos) {
        ++indice;
        if (campo.typeId() == QMetaType::QString)
            sentencia.ligar(indice, campo.toString());
        else
            sentencia.ligar(indice, campo.toLongLong());
    }
    sentencia.ligar(++indice, claveOrden(campos[NOMBRE].toString()));
}

QString nombreDe(const QVariantList &campos)
{
    return campos[DNI].toString() + u" - "_s + campos[NOMBRE].toString();
}

// What the form keeps from being typed, but a caller may still hand in.
bool admisible(const QVariantList &campos)
{
    return !campos[DNI].toString().isEmpty() && campos[CODMUN].toInt() <= CodigoMunicipioMaximo;
}

bool dniDeOtro(const PConexion &conexion, const QVariantList &campos)
{
    return Sentencia(conexion, "SELECT 1 FROM DECLARANTES WHERE DNI = ? AND CSCO <> ?")
        .con(campos[DNI].toString(), campos[CSCO].toLongLong())
        .fila();
}

// A code with its figures, empty when there is none.
QString codigo(qint64 valor, int cifras)
{
    return valor == 0 ? QString() : QString::number(valor).rightJustified(cifras, u'0');
}

} // namespace

Guardado guardarDeclarante(const PConexion &conexion, const Registro &registro, Recientes recientes)
{
    const QVariantList campos = leerCampos(registro);
    if (!admisible(campos))
        return Guardado::NoValido;
    qint32 clave = campos[CSCO].toInt();
    const bool nuevo = clave == 0;
    if (!nuevo && dniDeOtro(conexion, campos))
        return Guardado::CambioDniExiste;
    Sentencia sentencia(conexion, nuevo ? Alta : Cambio);
    ligarCampos(sentencia, campos);
    if (sentencia.ejecutar() == 0) {
        if (nuevo)
            return Guardado::AltaDniExiste;
        sinDeclarante(nombreDe(campos));
    }
    if (nuevo)
        clave = conexion->ultimaClave();
    if (recientes == Recientes::Contar)
        marcarReciente(conexion, clave);
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

namespace {

using Resultado = FilaConjunto::Resultado;

qint32 claveDe(const PConexion &datos, const QString &dni)
{
    Sentencia sentencia(datos, "SELECT CSCO FROM DECLARANTES WHERE DNI = ?");
    return sentencia.con(normalizado(dni)).fila() ? sentencia.clave(0) : 0;
}

/// Nothing when the set has to end before this one.
std::optional<Resultado> guardarValido(const PConexion &datos, Registro registro,
                                       Existentes existentes)
{
    const QString dni = registro[RegDeclarante::DNI].toString();
    if (existentes == Existentes::Examinar)
        return claveDe(datos, dni) == 0 ? Resultado::Nuevo : Resultado::Conservado;
    registro[RegDeclarante::CSCO] = 0;
    if (guardarDeclarante(datos, registro, Recientes::NoContar) == Guardado::Hecho)
        return Resultado::Nuevo;
    if (existentes == Existentes::Detenerse)
        return {};
    if (existentes == Existentes::Conservar)
        return Resultado::Conservado;
    registro[RegDeclarante::CSCO] = claveDe(datos, dni);
    guardarDeclarante(datos, registro, Recientes::NoContar);
    return Resultado::Sustituido;
}

QVariantList fila(Resultado resultado)
{
    return {int(resultado)};
}

QVariantList filaIncorrecta(const Filas &hallazgos)
{
    QVariantList incorrecta = fila(Resultado::Incorrecto);
    for (const QVariant &hallazgo : hallazgos)
        incorrecta += hallazgo.toList().value(0);
    return incorrecta;
}

} // namespace

Filas guardarConjunto(const PConexion &datos, const PConexion &lectura, const Filas &registros,
                      Existentes existentes, qint16 idioma)
{
    const bool escribe = existentes != Existentes::Examinar;
    std::optional<Transaccion> transaccion;
    if (escribe)
        transaccion.emplace(datos);
    const LecturaUnica vistaDatos(datos);
    const LecturaUnica vistaLectura(lectura);

    Filas resultados;
    resultados.reserve(registros.size());
    for (const QVariant &elemento : registros) {
        const Registro registro = elemento.toList();
        const Filas hallazgos = hallazgosImportar(lectura, registro, idioma);
        if (!hallazgos.isEmpty()) {
            resultados.append(QVariant(filaIncorrecta(hallazgos)));
            continue;
        }
        const auto resultado = guardarValido(datos, registro, existentes);
        if (!resultado)
            break;
        resultados.append(QVariant(fila(*resultado)));
    }
    if (transaccion)
        transaccion->confirmar();
    return resultados;
}

} // namespace servidor
