#include "cli/Declarante.h"
#include "cli/Orden.h"
#include "cli/Tabla.h"
#include "core/Importe.h"
#include "core/Periodos.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"

static Columna columna(const QString &titulo, int campo, bool numerica = false)
{
    return {titulo, [campo](const QVariantList &fila) { return fila.value(campo).toString(); },
            numerica};
}

static Resultado listado(const Argumentos &argumentos, std::span<const QStringView> nombres,
                         std::span<const Columna> columnas, const Filas &filas, Msj ninguno)
{
    if (argumentos.tiene(u"json"))
        return hecho(textoJson(nombres, filas));
    return hecho(filas.isEmpty() ? msj(ninguno) : textoTabla(columnas, filas));
}

static Resultado listarDeclarantes(const Argumentos &argumentos)
{
    using enum FilaDeclarante::Columna;
    static constexpr QStringView nombres[Total]
        = {u"CSCO", u"DNI", u"NOMBRE", u"NOMMUN", u"NOMPROV", u"NUM430", u"NUM480"};
    const Columna columnas[] = {
        columna(msj(Msj::ColumnaDni), DNI),          columna(msj(Msj::ColumnaRazonSocial), NOMBRE),
        columna(msj(Msj::ColumnaMunicipio), NOMMUN), columna(msj(Msj::ColumnaProvincia), NOMPROV),
        columna(Modelo430.toString(), NUM430, true), columna(Modelo480.toString(), NUM480, true),
    };
    return listado(argumentos, nombres, columnas, unico::la<cDecLista>().CargarDeclarantes(),
                   Msj::CliListaVaciaDeclarantes);
}

static QString periodoDe(const QVariantList &fila)
{
    using enum FilaDeclaracion::Columna;
    return textoPeriodo(fila.value(PERIODICIDAD).toInt(), fila.value(PERIODO).toInt());
}

static QString importeDe(const QVariantList &fila)
{
    return textoImporte(fila.value(FilaDeclaracion::IMPORTE).toDouble());
}

static Resultado listarDeclaraciones(const Argumentos &argumentos)
{
    using enum FilaDeclaracion::Columna;
    static constexpr QStringView nombres[Total]
        = {u"CSDE", u"EJERCICIO", u"PERIODICIDAD", u"PERIODO", u"MODELO", u"TIPOLOGIA", u"IMPORTE"};
    const Columna columnas[] = {
        columna(msj(Msj::Ejercicio), EJERCICIO),
        {msj(Msj::Periodo), periodoDe},
        columna(msj(Msj::Modelo), MODELO),
        {msj(Msj::ColumnaImporte), importeDe, true},
    };
    if (const QString motivo = tomarDeclarante(argumentos.valor(u"dni")); !motivo.isEmpty())
        return rechazado(motivo);
    return listado(argumentos, nombres, columnas, unico::la<cDecResumen>().CargarDeclaraciones(),
                   Msj::CliListaVaciaDeclaraciones);
}

static constexpr Opcion OpcionesDeclarantes[] = {
    {u"json", {}, Msj::AyudaJson},
};

static constexpr Opcion OpcionesDeclaraciones[] = {
    {u"dni", u"DNI", Msj::AyudaDni, Opcion::Obligatoria},
    {u"json", {}, Msj::AyudaJson},
};

extern constinit const Orden OrdenListarDeclarantes = {
    u"listar declarantes", Msj::AyudaListarDeclarantes, {},
    OpcionesDeclarantes,   Msj::NoSePudoHacer,          listarDeclarantes,
};

extern constinit const Orden OrdenListarDeclaraciones = {
    u"listar declaraciones", Msj::AyudaListarDeclaraciones, {}, OpcionesDeclaraciones,
    Msj::NoSePudoHacer,      listarDeclaraciones,
};
