#include "cli/Linea.h"
#include "cli/Tabla.h"
#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"

/// The column of a member.
template <class Fila, auto Dato> static QJsonValue de(const Fila &fila)
{
    return fila.*Dato;
}

/// Nothing of a damaged declarant.
template <auto Dato> static QJsonValue numeroDe(const DeclaranteListado &fila)
{
    return fila.danado ? QJsonValue() : QJsonValue(fila.*Dato);
}

static Resultado listarDeclarantes(const Argumentos &argumentos)
{
    using Fila = DeclaranteListado;
    const Columna<Fila> columnas[] = {
        {u"CSCO", de<Fila, &Fila::csco>},
        {u"DNI", de<Fila, &Fila::dni>, msj(Msj::ColumnaDni)},
        {u"NOMBRE", de<Fila, &Fila::nombre>, msj(Msj::ColumnaRazonSocial)},
        {u"NOMMUN", de<Fila, &Fila::nommun>, msj(Msj::ColumnaMunicipio)},
        {u"NOMPROV", de<Fila, &Fila::nomprov>, msj(Msj::ColumnaProvincia)},
        {u"NUM430", numeroDe<&Fila::num430>, Modelo430, true},
        {u"NUM480", numeroDe<&Fila::num480>, Modelo480, true},
    };
    return listado<Fila>(argumentos, columnas, unico::la<cDecLista>().CargarDeclarantes(),
                         Msj::CliListaVaciaDeclarantes);
}

static Resultado listarDeclaraciones(const Argumentos &argumentos)
{
    using Fila = DeclaracionListada;
    const auto periodo = [](const Fila &f) { return textoPeriodo(f.periodicidad, f.periodo); };
    const auto importe = [](const Fila &f) {
        return f.danada ? msj(Msj::RegistroDanado) : textoImporte(f.importe);
    };
    // every amount of up to 13 integer digits and two decimals is exact as a number of euros
    const auto euros
        = [](const Fila &f) { return f.danada ? QJsonValue() : QJsonValue(f.importe / 100); };
    const Columna<Fila> columnas[] = {
        {u"CSDE", de<Fila, &Fila::csde>},
        {u"EJERCICIO", de<Fila, &Fila::ejercicio>, msj(Msj::Ejercicio)},
        {u"PERIODICIDAD", de<Fila, &Fila::periodicidad>},
        {u"PERIODO", de<Fila, &Fila::periodo>, msj(Msj::Periodo), false, periodo},
        {u"MODELO", de<Fila, &Fila::modelo>, msj(Msj::Modelo)},
        {u"TIPOLOGIA", de<Fila, &Fila::tipologia>},
        {u"IMPORTE", euros, msj(Msj::ColumnaImporte), true, importe},
    };
    if (auto rechazo = tomarDeclarante(argumentos.valor(u"dni")))
        return *rechazo;
    return listado<Fila>(argumentos, columnas, unico::la<cDecResumen>().CargarDeclaraciones(),
                         Msj::CliListaVaciaDeclaraciones);
}

static constexpr Opcion OpcionesDeclarantes[] = {
    {u"json", {}, Msj::AyudaJson},
    {u"csv", {}, Msj::AyudaCsv},
};

static constexpr Opcion OpcionesDeclaraciones[] = {
    {u"dni", u"DNI", Msj::AyudaDni, Opcion::Obligatoria},
    {u"json", {}, Msj::AyudaJson},
    {u"csv", {}, Msj::AyudaCsv},
};

extern constinit const Orden OrdenListarDeclarantes = {
    u"listar declarantes", Msj::AyudaListarDeclarantes, {},
    OpcionesDeclarantes,   Msj::NoSePudoHacer,          listarDeclarantes,
};

extern constinit const Orden OrdenListarDeclaraciones = {
    u"listar declaraciones", Msj::AyudaListarDeclaraciones, {}, OpcionesDeclaraciones,
    Msj::NoSePudoHacer,      listarDeclaraciones,
};
