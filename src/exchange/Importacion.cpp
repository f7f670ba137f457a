#include "exchange/Importacion.h"

#include "core/LectorLineas.h"
#include "core/Rutas.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "dataservice/ErrorDatos.h"
#include "declarants/CamposDeclarante.h"
#include "exchange/LineaIntercambio.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

static constexpr qsizetype LineasConjunto = 5000; // one transaction
static constexpr qint64 CadaCuanto = 500; // lines between two looks at the user

/// The tax identifier as the service compares it.
static QString dniDe(const Registro &registro)
{
    return registro.value(RegDeclarante::DNI).toString().trimmed().toUpper();
}

static QString motivoDe(const intercambio::Rechazado &malo)
{
    const QString columna = QString::number(malo.columna);
    return malo.caracter.isNull()
        ? msj(Msj::ByteDeColumna, QString::number(malo.byte, 16).toUpper().rightJustified(2, u'0'),
              columna)
        : msj(Msj::CaracterDeColumna, malo.caracter, columna);
}

Importacion::Importacion(const QString &fichero, Existentes existentes)
    : preguntar([](const QString &) { return Respuesta::No; })
    , seguir([](qint64) { return true; })
    , m_fichero(fichero)
    , m_existentes(existentes)
{
}

void Importacion::ejecutar()
{
    QFile fichero(m_fichero);
    if (!fichero.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw ErrorDatos(Fallo::NoExiste, m_fichero, fichero.errorString());
    if (m_existentes != Existentes::Examinar)
        m_errores.emplace();
    LectorLineas lector(fichero, campos::AnchoLinea);
    while (!m_detenida && lector.siguiente()) {
        tomarLinea(lector.numero(), lector.linea());
        if (m_pendientes.size() == LineasConjunto)
            vaciar();
        if (lector.numero() % CadaCuanto == 0)
            continuar(lector.numero());
    }
    vaciar();
    if (m_errores)
        m_errores->terminar();
}

bool Importacion::continuar(qint64 linea)
{
    m_detenida = m_detenida || !seguir(linea);
    return !m_detenida;
}

void Importacion::tomarLinea(qint64 numero, QByteArrayView linea)
{
    Pendiente nueva{numero, {}, {}};
    if (linea.size() < campos::AnchoLinea)
        nueva.motivo = msj(Msj::LineaCorta);
    else if (const auto malo = intercambio::leerLinea(linea, nueva.registro))
        nueva.motivo = motivoDe(*malo);
    m_pendientes += std::move(nueva);
}

/// Stores what has been read; what the user stops is given up.
void Importacion::vaciar()
{
    while (!m_pendientes.isEmpty()) {
        guardarSeguidos();
        if (m_pendientes.isEmpty())
            break;
        const qint64 linea = m_pendientes.first().linea;
        preguntarPorElPrimero();
        if (!continuar(linea))
            m_pendientes.clear();
    }
}

static Filas guardarConjunto(const Filas &registros, Existentes existentes)
{
    auto servicio = servicioDeclarante();
    servicio->mdbnameL(rutas().lectura);
    return servicio->GuardarConjunto(registros, existentes, desplazamientoIdioma());
}

/// Those up to the next one that has to be asked about.
void Importacion::guardarSeguidos()
{
    Filas registros;
    for (const Pendiente &pendiente : std::as_const(m_pendientes))
        if (pendiente.motivo.isEmpty())
            registros.append(QVariant(pendiente.registro));
    const Filas resultados = guardarConjunto(registros, m_existentes);

    qsizetype hechas = 0;
    qsizetype tomados = 0;
    for (const Pendiente &pendiente : std::as_const(m_pendientes)) {
        if (!pendiente.motivo.isEmpty())
            anotarIncorrecto(pendiente.linea, {pendiente.motivo});
        else if (tomados < resultados.size())
            anotar(pendiente, resultados[tomados++].toList());
        else
            break;
        ++hechas;
    }
    m_pendientes.remove(0, hechas);
}

void Importacion::preguntarPorElPrimero()
{
    const Pendiente &primera = m_pendientes.first();
    switch (preguntar(dniDe(primera.registro))) {
    case Respuesta::SiATodos:
        m_existentes = Existentes::Sustituir;
        return;
    case Respuesta::NoATodos:
        m_existentes = Existentes::Conservar;
        return;
    case Respuesta::Si:
        anotar(primera,
               guardarConjunto({QVariant(primera.registro)}, Existentes::Sustituir)[0].toList());
        break;
    case Respuesta::No:
        anotar(primera, {int(FilaConjunto::Conservado)});
        break;
    }
    m_pendientes.removeFirst();
}

void Importacion::anotar(const Pendiente &pendiente, const QVariantList &resultado)
{
    switch (resultado[FilaConjunto::RESULTADO].toInt()) {
    case FilaConjunto::Incorrecto:
        anotarIncorrecto(pendiente.linea,
                         QVariant(resultado.mid(FilaConjunto::Hallazgos)).toStringList());
        return;
    case FilaConjunto::Sustituido:
        ++m_cuenta.sustituidos;
        break;
    case FilaConjunto::Conservado:
        ++m_cuenta.ignorados;
        break;
    default:
        ++(repetido(pendiente.registro) ? m_cuenta.ignorados : m_cuenta.importados);
    }
    ++m_cuenta.lineas;
}

void Importacion::anotarIncorrecto(qint64 linea, const QStringList &motivos)
{
    ++m_cuenta.lineas;
    ++m_cuenta.incorrectos;
    if (m_errores)
        for (const QString &motivo : motivos)
            m_errores->anotar(linea, motivo);
}

/// While nothing is stored, whether a new declarant stood in an earlier line.
bool Importacion::repetido(const Registro &registro)
{
    if (m_existentes != Existentes::Examinar)
        return false;
    quint64 clave = 0;
    for (const QChar c : dniDe(registro)) // nine capitals and digits
        clave = clave << 7 | c.unicode();
    const auto antes = m_vistos.size();
    m_vistos.insert(clave);
    return m_vistos.size() == antes;
}

static bool esElDeErrores(const QString &ruta)
{
    std::error_code error;
    return std::filesystem::equivalent(ruta.toStdU16String(),
                                       FicheroErrores::ruta().toStdU16String(), error);
}

QString motivoNoImportable(const QString &ruta)
{
    const QFileInfo fichero(ruta);
    const QString nombre = QDir::toNativeSeparators(ruta);
    if (!fichero.exists())
        return msj(Msj::NoExisteFicheroImportar);
    if (const QString motivo = motivoRutaRechazada(ruta); !motivo.isEmpty())
        return motivo;
    // it is emptied before the first line is read
    if (esElDeErrores(ruta))
        return msj(Msj::FicheroDelPrograma, nombre);
    if (!QFile(ruta).open(QIODevice::ReadOnly))
        return msj(Msj::FicheroIlegible, nombre);
    return fichero.size() == 0 ? msj(Msj::FicheroVacio, nombre) : QString();
}

QString mensajeFinal(const Importacion::Cuenta &cuenta)
{
    if (cuenta.incorrectos == 0)
        return msj(Msj::ImportacionCorrecta);
    if (cuenta.incorrectos == cuenta.lineas)
        return msj(Msj::ImportacionTodosErroneos);
    return cuenta.incorrectos == 1
        ? msj(Msj::ImportacionUnErroneo)
        : msj(Msj::ImportacionVariosErroneos, QString::number(cuenta.incorrectos));
}
