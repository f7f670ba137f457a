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

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

/// Lines of one transaction. Each writes most pages of the index of the identifiers, so that a long
/// file takes larger ones.
static std::size_t lineasConjunto(qint64 leidas)
{
    return static_cast<std::size_t>(std::clamp<qint64>(leidas / 10, 5000, 50'000));
}

static constexpr qint64 CadaCuanto = 500; // lines between two looks at the user

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
    try {
        importarLineas(fichero);
    } catch (...) {
        try {
            terminarErrores(); // the lines that were counted are told
        } catch (const ErrorDatos &) { // the first failure is the one to tell
        }
        throw;
    }
    terminarErrores();
}

void Importacion::importarLineas(QIODevice &fichero)
{
    LectorLineas lector(fichero, campos::AnchoLinea);
    while (!m_detenida && lector.siguiente()) {
        tomarLinea(lector.numero(), lector.linea());
        if (m_lineas.size() >= lineasConjunto(lector.numero()))
            vaciar();
        if (lector.numero() % CadaCuanto == 0)
            continuar(lector.numero());
    }
    vaciar();
}

void Importacion::terminarErrores()
{
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
    QString motivo;
    if (linea.size() < campos::AnchoLinea)
        motivo = msj(Msj::LineaCorta);
    else if (const auto malo = intercambio::leerLinea(linea, m_conjunto))
        motivo = motivoDe(*malo);
    m_lineas.push_back({numero, std::move(motivo)});
}

/// Stores what has been read; what the user stops is given up.
void Importacion::vaciar()
{
    while (m_hechas < m_lineas.size()) {
        guardarSeguidos();
        if (m_hechas == m_lineas.size())
            break;
        const qint64 linea = m_lineas[m_hechas].numero;
        preguntarPorElPrimero();
        if (!continuar(linea))
            break;
    }
    m_lineas.clear();
    m_conjunto.clear();
    m_hechas = 0;
    m_guardados = 0;
}

/// Those from the first that is not stored yet.
QList<ResultadoConjunto> Importacion::guardar(qsizetype hasta, Existentes existentes)
{
    auto servicio = servicioDeclarante();
    servicio->mdbnameL(rutas().lectura);
    return servicio->GuardarConjunto(m_conjunto, m_guardados, hasta, existentes,
                                     desplazamientoIdioma());
}

/// Those up to the next one that has to be asked about.
void Importacion::guardarSeguidos()
{
    const auto resultados = guardar(m_conjunto.size(), m_existentes);
    auto siguiente = resultados.begin();
    while (m_hechas < m_lineas.size()) {
        if (const QString &motivo = m_lineas[m_hechas].motivo; !motivo.isEmpty()) {
            anotarIncorrecta({motivo});
            siguienteLinea();
        } else if (siguiente != resultados.end())
            anotarDeclarante(*siguiente++);
        else
            break;
    }
}

void Importacion::preguntarPorElPrimero()
{
    switch (preguntar(dni())) {
    case Respuesta::SiATodos:
        m_existentes = Existentes::Sustituir;
        break;
    case Respuesta::NoATodos:
        m_existentes = Existentes::Conservar;
        break;
    case Respuesta::Si:
        anotarDeclarante(guardar(m_guardados + 1, Existentes::Sustituir).first());
        break;
    case Respuesta::No:
        anotarDeclarante({ResultadoConjunto::Conservado, {}});
        break;
    }
}

void Importacion::anotarDeclarante(const ResultadoConjunto &resultado)
{
    switch (resultado.clase) {
    case ResultadoConjunto::Incorrecto:
        anotarIncorrecta(resultado.hallazgos);
        break;
    case ResultadoConjunto::Sustituido:
        ++m_cuenta.sustituidos;
        break;
    case ResultadoConjunto::Conservado:
        ++m_cuenta.ignorados;
        break;
    case ResultadoConjunto::Nuevo:
        ++(repetido() ? m_cuenta.ignorados : m_cuenta.importados);
    }
    ++m_guardados;
    siguienteLinea();
}

void Importacion::anotarIncorrecta(const QStringList &motivos)
{
    ++m_cuenta.incorrectos;
    if (m_errores)
        for (const QString &motivo : motivos)
            m_errores->anotar(m_lineas[m_hechas].numero, motivo);
}

void Importacion::siguienteLinea()
{
    ++m_cuenta.lineas;
    ++m_hechas;
}

/// The tax identifier of the first declarant that is not stored yet, as the service compares it.
QString Importacion::dni() const
{
    const std::string_view texto = m_conjunto.texto(m_guardados, RegDeclarante::DNI);
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()))
        .trimmed()
        .toUpper();
}

/// While nothing is stored, whether that declarant stood in an earlier line.
bool Importacion::repetido()
{
    if (m_existentes != Existentes::Examinar)
        return false;
    quint64 clave = 0;
    for (const QChar c : dni()) // nine capitals and digits
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
    // it is emptied before the first line is read
    return QFileInfo::exists(ruta) && esElDeErrores(ruta)
        ? msj(Msj::FicheroDelPrograma, QDir::toNativeSeparators(ruta))
        : motivoNoLegible(ruta);
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
