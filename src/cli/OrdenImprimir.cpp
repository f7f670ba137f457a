#include "campaign/ImpresionVarias.h"
#include "campaign/cPendientes.h"
#include "cli/Linea.h"
#include "core/Rutas.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "core/cFecha.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/cDecResumen.h"
#include "printing/DocumentoPdf.h"
#include "printing/SalidaImpresora.h"
#include "printing/TrabajoImpresion.h"
#include "printing/cImOf.h"
#include "printing/cImprimirVarias.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

static constexpr Opcion Opciones[] = {
    {u"dni", u"DNI", Msj::AyudaDni},
    {u"todas", {}, Msj::AyudaTodas},
    {u"modelo", u"430|480", Msj::AyudaModelo, Opcion::Obligatoria},
    {u"ejercicio", u"AAAA", Msj::AyudaEjercicio, Opcion::Obligatoria},
    {u"periodo", u"MM", Msj::AyudaPeriodo},
    {u"borrador", {}, Msj::AyudaBorrador},
    {u"copias", u"adm,int", Msj::AyudaCopias},
    {u"fecha", u"FECHA", Msj::AyudaFecha},
    {u"pdf", u"SALIDA", Msj::AyudaPdf},
    {u"imprimir-en", u"IMPRESORA", Msj::AyudaImprimirEn},
};

/// Wrong usage that needs no look at what is stored.
static Rechazo comprobarUso(const Argumentos &argumentos)
{
    if (argumentos.tiene(u"dni") == argumentos.tiene(u"todas"))
        return malUso(argumentos.tiene(u"dni") ? msj(Msj::CliOpcionesExcluyentes,
                                                     conGuiones(u"dni"), conGuiones(u"todas"))
                                               : msj(Msj::CliFaltaOpcion, conGuiones(u"dni")));
    for (const QStringView destino : {u"pdf", u"imprimir-en"})
        if (argumentos.tiene(destino) && argumentos.valor(destino).isEmpty())
            return malUso(msj(Msj::CliFaltaValor, conGuiones(destino)));
    if (!argumentos.tiene(u"pdf") && !argumentos.tiene(u"imprimir-en"))
        return malUso(msj(Msj::CliPdfOImpresora));
    if (argumentos.tiene(u"borrador") && argumentos.tiene(u"copias"))
        return malUso(
            msj(Msj::CliOpcionesExcluyentes, conGuiones(u"borrador"), conGuiones(u"copias")));
    const QString modelo = argumentos.valor(u"modelo");
    if (modelo != Modelo430 && modelo != Modelo480)
        return valorMalo(u"modelo", modelo);
    if (numeroDado(argumentos, u"ejercicio", UltimoEjercicio) == 0)
        return valorMalo(u"ejercicio", argumentos.valor(u"ejercicio"));
    if (modelo == Modelo430 && !argumentos.tiene(u"periodo"))
        return malUso(msj(Msj::CliFaltaOpcion, conGuiones(u"periodo")));
    const int mes = numeroDado(argumentos, u"periodo", UltimoMes);
    if (argumentos.tiene(u"periodo") && (mes == 0 || (modelo == Modelo480 && mes != PeriodoAnual)))
        return valorMalo(u"periodo", argumentos.valor(u"periodo"));
    return {};
}

/// The month of a 430; 12 for a 480.
static int periodoPedido(const Argumentos &argumentos)
{
    return argumentos.valor(u"modelo") == Modelo480 ? int(PeriodoAnual)
                                                    : numeroDado(argumentos, u"periodo", UltimoMes);
}

/// Finds the return among the declarant's and makes it the header's and the request's.
static Rechazo tomarDeclaracion(const Argumentos &argumentos)
{
    const QString modelo = argumentos.valor(u"modelo");
    const int ejercicio = numeroDado(argumentos, u"ejercicio", UltimoEjercicio);
    const int periodo = periodoPedido(argumentos);

    auto &cabecera = unico::la<cDecResumen>();
    const auto declaraciones = cabecera.CargarDeclaraciones();
    const auto hallada = std::ranges::find_if(declaraciones, [&](const DeclaracionListada &d) {
        return d.modelo == modelo && d.ejercicio == ejercicio && d.periodo == periodo;
    });
    if (hallada == declaraciones.end())
        return rechazado(msj(Msj::CliDeclaracionNoExiste, modelo, argumentos.valor(u"ejercicio"),
                             modelo == Modelo480 ? palabraPeriodicidad(PeriodicidadAnual)
                                                 : argumentos.valor(u"periodo")));
    cabecera.TomarDeclaracion(*hallada);
    auto &peticion = unico::la<cImOf>();
    peticion.CSCO(cabecera.CSCO());
    peticion.CSDE(cabecera.CSDE());
    peticion.MODELO(modelo);
    return {};
}

static Rechazo tomarCopias(const Argumentos &argumentos)
{
    auto &peticion = unico::la<cImOf>();
    if (argumentos.tiene(u"borrador")) {
        peticion.PedirBorrador();
        return {};
    }
    peticion.PedirOficial();
    if (!argumentos.tiene(u"copias"))
        return {};
    QStringList pedidas = argumentos.valor(u"copias").split(u',');
    peticion.COPIAADM(pedidas.removeAll(u"adm"_s) > 0 ? u"X"_s : QString());
    peticion.COPIAINT(pedidas.removeAll(u"int"_s) > 0 ? u"X"_s : QString());
    if (pedidas.isEmpty())
        return {};
    return malUso(msj(Msj::CliCopias));
}

static Rechazo tomarFecha(const Argumentos &argumentos)
{
    auto &peticion = unico::la<cImOf>();
    if (!argumentos.tiene(u"fecha")) {
        const QDate hoy = QDate::currentDate();
        peticion.FECHAPRE(hoy.year() * 10000 + hoy.month() * 100 + hoy.day());
        return {};
    }
    const auto leida = comprobarFechaPresentacion(argumentos.valor(u"fecha"), unico::la<cFecha>());
    if (!leida.valida())
        return rechazado(leida.mensaje);
    peticion.FECHAPRE(leida.fecha);
    return {};
}

static Resultado escribirPdf(TrabajoImpresion &trabajo, const QString &salida)
{
    const bool esCarpeta = QFileInfo(salida).isDir();
    const QString ruta
        = esCarpeta ? QDir(salida).filePath(trabajo.nombreFichero(trabajo.copias())) : salida;
    QString motivo = motivoRutaRechazada(ruta);
    if (motivo.isEmpty())
        motivo = guardarPdfs(trabajo, {ruta});
    return motivo.isEmpty() ? hecho(msj(Msj::PdfGuardado, QDir::toNativeSeparators(ruta)))
                            : rechazado(motivo);
}

static Resultado enviar(TrabajoImpresion &trabajo, const QString &impresora)
{
    SalidaImpresora salida;
    if (!salida.elegir(impresora))
        return rechazado(msj(Msj::ImpresoraNoExiste, impresora));
    return salida.imprimir(trabajo) ? hecho(msj(Msj::CliImpreso, impresora))
                                    : rechazado(msj(Msj::ErrorImpresora, impresora));
}

/// The returns of that model and period that are stored, and the options for all of them.
static Rechazo tomarTodas(const Argumentos &argumentos)
{
    const bool anual = argumentos.valor(u"modelo") == Modelo480;
    const int ejercicio = numeroDado(argumentos, u"ejercicio", UltimoEjercicio);
    cPendientes campana;
    campana.CABECERA(static_cast<qint16>(ejercicio), anual ? 0 : periodoPedido(argumentos));
    if (!campana.DentroDeLimites())
        return rechazado(textoCabecera(qint16(ReglaCabecera::Fuera)));
    auto &varias = unico::la<cImprimirVarias>();
    varias.PETICION() = unico::la<cImOf>();
    varias.Pedir(campana.ParaImprimir(campana.Cargar()));
    return varias.filas().isEmpty() ? Rechazo(rechazado(msj(Msj::NadaQueImprimir))) : Rechazo();
}

/// What became of all of them: those not made a line each, and how many.
static Resultado contarVarias()
{
    const auto &varias = unico::la<cImprimirVarias>();
    const auto numero
        = [&](FilaImprimir::Estado estado) { return QString::number(varias.cuantas(estado)); };
    QStringList lineas;
    for (const auto &fila : varias.filas())
        if (fila.estado == FilaImprimir::NoHecha)
            lineas += fila.dni + u": "_s + fila.motivo;
    const bool todas = lineas.isEmpty();
    lineas += msj(Msj::VariasImpresas, numero(FilaImprimir::Hecha), numero(FilaImprimir::NoHecha));
    return {todas ? Salida::Hecho : Salida::Rechazado, lineas.join(u'\n')};
}

static Resultado escribirVarios(const QString &carpeta)
{
    if (!QFileInfo(carpeta).isDir())
        return rechazado(msj(Msj::CliCarpetaNoExiste, QDir::toNativeSeparators(carpeta)));
    impresionVarias::enCarpeta(unico::la<cImprimirVarias>(), carpeta,
                               impresionVarias::SiExiste::Sustituir, [](qint64) { return true; });
    return contarVarias();
}

static Resultado enviarVarias(const QString &impresora)
{
    SalidaImpresora salida;
    if (!salida.elegir(impresora))
        return rechazado(msj(Msj::ImpresoraNoExiste, impresora));
    impresionVarias::enImpresora(
        unico::la<cImprimirVarias>(), impresora,
        [&](TrabajoImpresion &trabajo) { return salida.imprimir(trabajo); },
        [](qint64) { return true; });
    return contarVarias();
}

/// To the file and the printer asked for, the second only when the first was done.
template <class EnPdf, class EnPapel>
static Resultado repartir(const Argumentos &argumentos, EnPdf enPdf, EnPapel enPapel)
{
    Resultado resultado;
    if (argumentos.tiene(u"pdf"))
        resultado = enPdf(argumentos.valor(u"pdf"));
    if (resultado.salida == Salida::Hecho && argumentos.tiene(u"imprimir-en")) {
        const Resultado enviado = enPapel(argumentos.valor(u"imprimir-en"));
        resultado.salida = enviado.salida;
        resultado.texto += (resultado.texto.isEmpty() ? QString() : u"\n"_s) + enviado.texto;
    }
    return resultado;
}

static Resultado imprimir(const Argumentos &argumentos)
{
    using Paso = Rechazo (*)(const Argumentos &);
    static constexpr Paso una[]
        = {comprobarUso, tomarCopias,
           [](const Argumentos &dados) { return tomarDeclarante(dados.valor(u"dni")); },
           tomarDeclaracion, tomarFecha};
    static constexpr Paso muchas[] = {comprobarUso, tomarCopias, tomarFecha, tomarTodas};
    const bool todas = argumentos.tiene(u"todas");
    for (const Paso paso : todas ? std::span<const Paso>(muchas) : std::span<const Paso>(una))
        if (const Rechazo rechazo = paso(argumentos))
            return *rechazo;
    if (todas)
        return repartir(argumentos, escribirVarios, enviarVarias);
    TrabajoImpresion trabajo(unico::la<cImOf>());
    return repartir(
        argumentos, [&](const QString &ruta) { return escribirPdf(trabajo, ruta); },
        [&](const QString &impresora) { return enviar(trabajo, impresora); });
}

extern constinit const Orden OrdenImprimir = {
    u"imprimir", Msj::AyudaImprimir, {}, Opciones, Msj::ImpresionFallida, imprimir,
};
