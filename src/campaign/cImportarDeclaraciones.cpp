#include "campaign/cImportarDeclaraciones.h"

#include "campaign/RegistrosPrestados.h"
#include "core/Caracteres.h"
#include "core/Csv.h"
#include "core/Importe.h"
#include "core/LectorLineas.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "declarants/MensajesDeclarante.h"
#include "declarations/EntradaTexto.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

using Fila = FilaDeclaraciones;

/// A longer line is none of ours.
static constexpr qsizetype AnchoMaximo = 16384;
static constexpr qsizetype MaximoFilas = 200'000;
/// Rows that are read between two looks at the user.
static constexpr qsizetype Tanda = 500;
/// Returns of one transaction.
static constexpr qsizetype TandaGuardar = 5000;

QString FilaDeclaraciones::textoMotivo() const
{
    return columna.isEmpty() ? motivo : columna + u": "_s + motivo;
}

QString cImportarDeclaraciones::leer(const QString &ruta, const Seguir &seguir)
{
    *this = {};
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly))
        return msj(Msj::FicheroIlegible, QDir::toNativeSeparators(ruta));
    LectorLineas lector(fichero, AnchoMaximo + 1);
    m_encabezado = leerEncabezado(lector.siguiente() ? lector.linea() : QByteArrayView());
    if (!m_encabezado.motivo.isEmpty())
        return m_encabezado.motivo;

    const RegistrosPrestados prestados;
    qsizetype buscadas = 0;
    while (lector.siguiente()) {
        leerFila(lector.linea(), lector.numero());
        if (m_filas.size() > MaximoFilas)
            return msj(Msj::CsvDemasiadasFilas, QString::number(MaximoFilas));
        if (m_filas.size() - buscadas < Tanda)
            continue;
        leerBuscadas(buscadas);
        buscadas = m_filas.size();
        if (!seguir(lector.numero())) {
            m_filas.clear();
            return {};
        }
    }
    leerBuscadas(buscadas);
    return {};
}

qsizetype cImportarDeclaraciones::cuantas(Fila::Estado estado) const
{
    return std::ranges::count(m_filas, estado, &Fila::estado);
}

static bool seGuarda(const Fila &fila)
{
    return fila.marcada && (fila.estado == Fila::Nueva || fila.estado == Fila::Sustituye);
}

qsizetype cImportarDeclaraciones::porGuardar() const
{
    return std::ranges::count_if(m_filas, seGuarda);
}

void cImportarDeclaraciones::rechazarEn(Fila &fila, qsizetype lugar, const QString &motivo) const
{
    fila.estado = Fila::Rechazada;
    fila.marcada = false;
    fila.columna = lugar < 0 ? QString() : m_encabezado.columnas[lugar].titulo;
    fila.motivo = motivo;
}

void cImportarDeclaraciones::rechazar(Fila &fila, ColumnaCsv::Que que, const QString &motivo) const
{
    rechazarEn(fila, que == ColumnaCsv::Ninguna ? -1 : m_encabezado.lugar(que), motivo);
}

QString cImportarDeclaraciones::campo(const Fila &fila, ColumnaCsv::Que que) const
{
    return fila.campos.value(m_encabezado.lugar(que));
}

static bool esTexto(QByteArrayView linea)
{
    return std::ranges::none_of(
        linea, [](char c) { return (static_cast<uchar>(c) < ' ' && c != '\t') || c == 0x7f; });
}

/// Empty lines, which spreadsheets leave at the end, count for nothing.
void cImportarDeclaraciones::leerFila(QByteArrayView linea, qint64 numero)
{
    Fila fila;
    fila.linea = numero;
    const bool entera = linea.size() <= AnchoMaximo;
    const auto campos = entera && esTexto(linea)
        ? csv::partir(linea, m_encabezado.separador, MaximoColumnasCsv)
        : std::nullopt;
    if (campos && std::ranges::all_of(*campos, &QString::isEmpty))
        return;
    if (!campos) {
        rechazar(fila, ColumnaCsv::Ninguna, msj(entera ? Msj::CsvFilaIlegible : Msj::CsvFilaLarga));
    } else {
        fila.campos = *campos;
        if (fila.campos.size() > m_encabezado.columnas.size())
            rechazar(fila, ColumnaCsv::Ninguna, msj(Msj::CsvSobranCampos));
        else
            leerClave(fila);
    }
    m_filas.append(std::move(fila));
    if (m_filas.constLast().estado != Fila::Rechazada)
        rechazarRepetidas(m_filas.last());
}

/// 1 to 12, or the month's name in either language; 0 when it is none.
static int leerMes(const QString &texto)
{
    if (sonCifras(texto))
        return texto.size() <= 2 && texto.toInt() <= UltimoMes ? texto.toInt() : 0;
    for (int mes = 1; mes <= UltimoMes; ++mes)
        for (const Idioma idioma : {Idioma::Castellano, Idioma::Euskera})
            if (texto.compare(nombreMes(mes, idioma), Qt::CaseInsensitive) == 0)
                return mes;
    return 0;
}

/// Whose return it is, and which one.
void cImportarDeclaraciones::leerClave(Fila &fila)
{
    fila.dni = campo(fila, ColumnaCsv::Dni).toUpper();
    if (fila.dni.isEmpty())
        return rechazar(fila, ColumnaCsv::Dni, msj(Msj::CsvSinDni));
    const QString ejercicio = campo(fila, ColumnaCsv::Ejercicio);
    if (ejercicio.isEmpty())
        return rechazar(fila, ColumnaCsv::Ejercicio,
                        textoCabecera(qint16(ReglaCabecera::Ejercicio)));
    if (!sonCifras(ejercicio) || ejercicio.size() > 4)
        return rechazar(fila, ColumnaCsv::Ejercicio, msj(Msj::CsvEjercicioMal, ejercicio));
    const bool anual = m_encabezado.modelo == Modelo480;
    const QString periodo = campo(fila, ColumnaCsv::Periodo);
    const int mes = anual ? PeriodoAnual : leerMes(periodo);
    if (mes == 0)
        return rechazar(fila, ColumnaCsv::Periodo,
                        periodo.isEmpty() ? textoCabecera(qint16(ReglaCabecera::Periodo))
                                          : msj(Msj::CsvPeriodoMal, periodo));
    cDecResumen cabecera;
    cabecera.CambiarModelo(m_encabezado.modelo);
    fila.cabecera = {static_cast<qint16>(ejercicio.toInt()), cabecera.PERIODICIDAD(),
                     static_cast<quint8>(mes), m_encabezado.modelo, cabecera.TIPOLOGIA()};
}

/// Which of two rows is meant cannot be known: both are refused.
void cImportarDeclaraciones::rechazarRepetidas(Fila &fila)
{
    const auto &c = fila.cabecera;
    const QString clave = fila.dni + QChar(c.ejercicio) + QChar(short(c.periodo));
    const auto vista = m_vistas.constFind(clave);
    if (vista == m_vistas.constEnd()) {
        m_vistas.insert(clave, m_filas.size() - 1);
        return;
    }
    Fila &otra = m_filas[*vista];
    rechazar(fila, ColumnaCsv::Dni, msj(Msj::CsvRepetida, QString::number(otra.linea)));
    if (otra.estado != Fila::Rechazada)
        rechazar(otra, ColumnaCsv::Dni, msj(Msj::CsvRepetida, QString::number(fila.linea)));
}

void cImportarDeclaraciones::leerBuscadas(qsizetype desde)
{
    Filas buscadas;
    for (const Fila &fila : m_filas.sliced(desde))
        if (fila.estado != Fila::Rechazada)
            buscadas.append(QVariant(Registro{fila.dni, fila.cabecera.ejercicio,
                                              fila.cabecera.periodo, fila.cabecera.modelo}));
    Filas halladas;
    const auto servicio = servicioDeclaracion();
    servicio->Buscar(buscadas, halladas);
    for (qsizetype i = desde, hallada = 0; i < m_filas.size(); ++i)
        if (m_filas[i].estado != Fila::Rechazada)
            calcular(m_filas[i], halladas[hallada++].toList(), *servicio);
}

void cImportarDeclaraciones::calcular(Fila &fila, const Registro &hallada,
                                      SvrOstr::cDeclaracion &servicio)
{
    const qint32 csco = hallada[FilaBuscada::CSCO].toInt();
    if (csco == 0)
        return rechazar(fila, ColumnaCsv::Dni, msj(Msj::CliDeclaranteNoExiste, fila.dni));
    if (hallada[FilaBuscada::IMPORTE].isNull())
        return rechazar(fila, ColumnaCsv::Dni, msj(Msj::FalloRegistroDanado, fila.dni));
    auto &cabecera = unico::la<cDecResumen>();
    cabecera.TomarDeclarante(csco, fila.dni, {});
    cabecera.TomarDeclaracion({fila.cabecera, hallada[FilaBuscada::CSDE].toInt(), 0});
    const Registro limites = cabecera.Cabecera().first(RegCabecera::TotalPeriodo);
    if (!servicio.EjerPerValidos(limites))
        return rechazar(fila, ColumnaCsv::Ejercicio, textoCabecera(qint16(ReglaCabecera::Fuera)));
    if (cabecera.CSDE() != 0) {
        fila.estado = Fila::Sustituye;
        fila.anterior = hallada[FilaBuscada::IMPORTE].toDouble();
        try {
            fila.huella = servicio.Huella(cabecera.CSDE());
        } catch (const ErrorDatos &error) {
            return rechazar(fila, ColumnaCsv::Ninguna, textoFallo(error));
        }
    }
    fila.cabecera.modelo == Modelo430 ? calcular430(fila) : calcular480(fila);
}

float cImportarDeclaraciones::tipo(qint16 ejercicio, quint8 mes)
{
    const int clave = cuentaDeMes(ejercicio, mes);
    if (!m_tipos.contains(clave))
        m_tipos.insert(clave, unico::la<cDatos430>().CalcularTipo());
    return m_tipos.value(clave);
}

void cImportarDeclaraciones::calcular430(Fila &fila)
{
    auto &registro = unico::la<cDatos430>();
    registro.Nueva(tipo(fila.cabecera.ejercicio, fila.cabecera.periodo));
    registro.CSDE(unico::la<cDecResumen>().CSDE());
    static constexpr std::pair<ColumnaCsv::Que, Dato430> datos[] = {
        {ColumnaCsv::Base, Dato430::Base},
        {ColumnaCsv::BaseRectificacion, Dato430::BaseRectificacion},
        {ColumnaCsv::CuotaRectificacion, Dato430::CuotaRectificacion},
    };
    for (const auto &[que, dato] : datos) {
        const QString texto = campo(fila, que);
        if (texto.isEmpty() && dato != Dato430::Base)
            continue;
        if (const QString motivo = tomarDato(dato, texto); !motivo.isEmpty())
            return rechazar(fila, que, motivo);
    }
    // marked after the amounts: nothing of them is rectified when both are 0
    if (registro.BASEREC() != 0 || registro.CUOTAREC() != 0)
        registro.MarcarRectificacion(true);
    const auto regla = static_cast<Regla430>(registro.ValidarDatos430(registro.RegistroValidar()));
    if (regla != Regla430::Ninguna)
        return rechazar(fila,
                        regla == Regla430::BaseRectificada ? ColumnaCsv::BaseRectificacion
                                                           : ColumnaCsv::CuotaRectificacion,
                        msj(Msj::ErrorRectificacion430));
    fila.importe = registro.CUOTATOT();
    fila.registro = registro.RegistroGuardar();
}

const Registro &cImportarDeclaraciones::tipos(qint16 ejercicio)
{
    const auto hallados = m_tiposAnuales.constFind(ejercicio);
    if (hallados != m_tiposAnuales.constEnd())
        return *hallados;
    Registro &nuevos = m_tiposAnuales[ejercicio];
    unico::la<cDatos480>().CalcularTipoAnual(nuevos);
    return nuevos;
}

void cImportarDeclaraciones::calcular480(Fila &fila)
{
    auto &registro = unico::la<cDatos480>();
    registro.Nueva(tipos(fila.cabecera.ejercicio));
    registro.CSDE(unico::la<cDecResumen>().CSDE());
    Casillas480 dadas;
    const auto lugarDe = [&](int numero) {
        return std::ranges::find(m_encabezado.columnas, numero, &ColumnaCsv::casilla)
            - m_encabezado.columnas.begin();
    };
    for (qsizetype i = 0; i < fila.campos.size(); ++i) {
        const auto &columna = m_encabezado.columnas[i];
        if (columna.que != ColumnaCsv::Casilla || fila.campos[i].isEmpty())
            continue;
        const ImporteDado importe = importeDado(fila.campos[i]);
        if (!importe.motivo.isEmpty())
            return rechazarEn(fila, i, importe.motivo);
        dadas.insert(columna.casilla, importe.centimos);
    }
    if (const int numero = tomarCasillas(dadas); numero != 0)
        return rechazarEn(fila, lugarDe(numero), msj(Msj::ImporteTotalExcedido, msj(Msj::Totales)));
    if (registro.casilla(Casilla480::C76_BA2) != 0 && registro.C77_TI2() == 0)
        return rechazarEn(fila, lugarDe(static_cast<int>(Casilla480::C76_BA2)),
                          msj(Msj::UnSoloTipo, QString::number(fila.cabecera.ejercicio)));
    if (registro.ValidarDatos480(registro.RegistroValidar()) != 0)
        return rechazar(fila, ColumnaCsv::Ninguna, msj(Msj::ErrorTotal480));
    fila.importe = registro.casilla(Casilla480::C81_RES);
    fila.registro = registro.RegistroGuardar();
}

/// False when nothing could be stored with `todoONada`.
bool cImportarDeclaraciones::guardarTanda(const QList<qsizetype> &cuales, bool todoONada)
{
    Filas registros;
    registros.reserve(cuales.size());
    for (const qsizetype i : cuales)
        registros.append(QVariant(m_filas[i].registro));
    const Registro claves = servicioDeclaracion()->GuardarConjunto(registros, todoONada);
    bool alguna = false;
    for (qsizetype i = 0; i < cuales.size(); ++i) {
        const bool guardada = claves[i].toInt() > 0;
        alguna = alguna || guardada;
        m_filas[cuales[i]].estado = guardada ? Fila::Guardada : Fila::NoGuardada;
        if (!guardada)
            m_filas[cuales[i]].motivo = msj(Msj::CliNoGuardada);
    }
    return alguna || !todoONada;
}

/// Takes out of `cuales` the returns that are no longer those that the user saw.
void cImportarDeclaraciones::apartarCambiadas(QList<qsizetype> &cuales)
{
    const auto servicio = servicioDeclaracion();
    cuales.removeIf([&](qsizetype i) {
        Fila &fila = m_filas[i];
        if (!fila.sustituye()
            || servicio->Huella(fila.registro[RegGuardar::CSDE].toInt()) == fila.huella)
            return false;
        fila.estado = Fila::NoGuardada;
        fila.motivo = msj(Msj::CsvCambiada);
        return true;
    });
}

bool cImportarDeclaraciones::guardar(bool todoONada, const Seguir &seguir)
{
    QList<qsizetype> cuales;
    for (qsizetype i = 0; i < m_filas.size(); ++i)
        if (seGuarda(m_filas[i]))
            cuales.append(i);
    const qsizetype pedidas = cuales.size();
    apartarCambiadas(cuales);
    if (todoONada && cuales.size() < pedidas)
        return false;
    const qsizetype tanda = todoONada ? cuales.size() : TandaGuardar;
    for (qsizetype i = 0; i < cuales.size(); i += tanda) {
        if (!seguir(i)
            || !guardarTanda(cuales.sliced(i, std::min(tanda, cuales.size() - i)), todoONada))
            return false;
    }
    return true;
}

QByteArray cImportarDeclaraciones::csvRechazadas() const
{
    QStringList titulos;
    for (const ColumnaCsv &columna : m_encabezado.columnas)
        titulos += columna.titulo;
    const qsizetype motivo = titulos.indexOf(tituloMotivo());
    QByteArray texto = csv::Marca.toByteArray()
        + csv::linea(motivo < 0 ? titulos + QStringList{tituloMotivo()} : titulos);
    for (const Fila &fila : m_filas) {
        if (fila.motivo.isEmpty())
            continue;
        QStringList campos = fila.campos;
        campos.resize(motivo < 0 ? titulos.size() + 1 : titulos.size());
        campos[motivo < 0 ? titulos.size() : motivo] = fila.textoMotivo();
        texto += csv::linea(campos);
    }
    return texto;
}
