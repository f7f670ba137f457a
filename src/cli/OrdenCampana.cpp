#include "campaign/cImportarDeclaraciones.h"
#include "campaign/cPendientes.h"
#include "cli/Linea.h"
#include "cli/Tabla.h"
#include "core/Importe.h"
#include "core/LectorLineas.h"
#include "core/Textos.h"
#include "declarants/MensajesDeclarante.h"

using namespace Qt::StringLiterals;

/// A month 1 to 12, or the annual return as 0; -1 for anything else.
static int periodoDado(const Argumentos &argumentos)
{
    const QString texto = argumentos.valor(u"periodo").toUpper();
    for (const Idioma idioma : {Idioma::Castellano, Idioma::Euskera})
        if (texto == palabraPeriodicidad(PeriodicidadAnual, idioma))
            return 0;
    const int mes = numeroDado(argumentos, u"periodo", UltimoMes);
    return mes == 0 ? -1 : mes;
}

static QJsonValue nombreEstado(const DeclarantePendiente &fila)
{
    static constexpr QStringView nombres[]
        = {u"GUARDADA", u"PENDIENTE", u"FALTA_ANTERIOR", u"DANADA"};
    return nombres[static_cast<int>(fila.estado())].toString();
}

static Resultado pendientes(const Argumentos &argumentos)
{
    using Fila = DeclarantePendiente;
    const int ejercicio = numeroDado(argumentos, u"ejercicio", UltimoEjercicio);
    if (ejercicio == 0)
        return valorMalo(u"ejercicio", argumentos.valor(u"ejercicio"));
    const int mes = periodoDado(argumentos);
    if (mes < 0)
        return valorMalo(u"periodo", argumentos.valor(u"periodo"));
    cPendientes campana;
    campana.CABECERA(static_cast<qint16>(ejercicio), mes);
    if (!campana.DentroDeLimites())
        return rechazado(textoCabecera(qint16(ReglaCabecera::Fuera)));
    const auto faltan = [](const Fila &f) { return QJsonValue(textoMeses(f.faltan)); };
    const auto importe
        = [](const Fila &f) { return f.conImporte() ? textoImporte(f.importe) : QString(); };
    const auto euros
        = [](const Fila &f) { return f.conImporte() ? QJsonValue(f.importe / 100) : QJsonValue(); };
    const Columna<Fila> columnas[] = {
        {u"CSCO", [](const Fila &f) { return QJsonValue(f.csco); }},
        {u"DNI", [](const Fila &f) { return QJsonValue(f.dni); }, msj(Msj::ColumnaDni)},
        {u"NOMBRE", [](const Fila &f) { return QJsonValue(f.nombre); },
         msj(Msj::ColumnaRazonSocial)},
        {u"CSDE", [](const Fila &f) { return QJsonValue(f.csde); }},
        {u"ESTADO", nombreEstado, msj(Msj::ColumnaEstado), false,
         [](const Fila &f) { return textoEstado(f.estado()); }},
        {u"IMPORTE", euros, msj(Msj::ColumnaImporte), true, importe},
        {u"FALTAN", faltan, msj(Msj::ColumnaFaltan)},
    };
    return listado<Fila>(argumentos, columnas, campana.Cargar(), Msj::CliListaVaciaPendientes);
}

static constexpr Opcion OpcionesPendientes[] = {
    {u"ejercicio", u"AAAA", Msj::AyudaEjercicio, Opcion::Obligatoria},
    {u"periodo", u"MM|ANUAL", Msj::AyudaPeriodoOAnual, Opcion::Obligatoria},
    {u"json", {}, Msj::AyudaJson},
    {u"csv", {}, Msj::AyudaCsv},
};

extern constinit const Orden OrdenPendientes = {
    u"pendientes", Msj::AyudaPendientes, {}, OpcionesPendientes, Msj::NoSePudoHacer, pendientes,
};

/// Why each row is not stored, a line a row.
static QStringList motivos(const cImportarDeclaraciones &hoja)
{
    QStringList lineas;
    for (const auto &fila : hoja.filas()) {
        QString motivo = fila.textoMotivo();
        if (motivo.isEmpty() && !fila.marcada)
            motivo = msj(Msj::CliYaGuardada);
        if (!motivo.isEmpty())
            lineas += msj(Msj::CliFilaRechazada, QString::number(fila.linea), motivo);
    }
    return lineas;
}

static QString textoCuenta(const cImportarDeclaraciones &hoja)
{
    using enum FilaDeclaraciones::Estado;
    const auto guardadas = hoja.cuantas(Guardada);
    const auto rechazadas = hoja.cuantas(Rechazada);
    return msj(Msj::HojaGuardada, QString::number(guardadas),
               QString::number(hoja.filas().size() - guardadas - rechazadas),
               QString::number(rechazadas));
}

static Resultado declararDesde(const Argumentos &argumentos)
{
    using enum FilaDeclaraciones::Estado;
    const QString ruta = argumentos.valor(u"desde");
    const bool todoONada = argumentos.tiene(u"todo-o-nada");
    if (ruta.isEmpty())
        return malUso(msj(Msj::CliFaltaValor, conGuiones(u"desde")));
    if (const QString motivo = motivoNoLegible(ruta); !motivo.isEmpty())
        return rechazado(motivo);
    const auto seguir = [](qint64) { return true; };
    cImportarDeclaraciones hoja;
    if (const QString motivo = hoja.leer(ruta, seguir); !motivo.isEmpty())
        return rechazado(motivo);
    if (!argumentos.tiene(u"sustituir"))
        for (qsizetype i = 0; i < hoja.filas().size(); ++i)
            if (hoja.filas()[i].estado == Sustituye)
                hoja.marcar(i, false);
    const bool limpia = hoja.porGuardar() == hoja.filas().size();
    QString fallo;
    if (!argumentos.tiene(u"simular") && (limpia || !todoONada)) {
        try {
            hoja.guardar(todoONada, seguir);
        } catch (const std::exception &error) {
            fallo = textoFallo(error);
        }
    }
    QStringList lineas = motivos(hoja);
    const bool todas = lineas.isEmpty() && fallo.isEmpty();
    if (!fallo.isEmpty())
        lineas += msj(Msj::NoSePudoGuardar, fallo);
    lineas += argumentos.tiene(u"simular") ? msj(Msj::CliSimulada) + u' '
            + msj(Msj::CuentaHoja, QString::number(hoja.filas().size()),
                  QString::number(hoja.cuantas(Nueva)), QString::number(hoja.cuantas(Sustituye)),
                  QString::number(hoja.cuantas(Rechazada)), QString::number(hoja.porGuardar()))
                                           : textoCuenta(hoja);
    return todas ? hecho(lineas.join(u'\n')) : rechazado(lineas.join(u'\n'));
}

static constexpr Opcion OpcionesDesde[] = {
    {u"desde", u"FICHERO.csv", Msj::AyudaDesde, Opcion::Obligatoria},
    {u"simular", {}, Msj::AyudaSimular},
    {u"sustituir", {}, Msj::AyudaSustituir},
    {u"todo-o-nada", {}, Msj::AyudaTodoONada},
};

extern constinit const Orden OrdenDeclararDesde = {
    u"declarar", Msj::AyudaDeclararDesde, {}, OpcionesDesde, Msj::NoSePudoGuardar, declararDesde,
};
