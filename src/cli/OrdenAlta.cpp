#include "cli/DatosAlta.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/MensajesDeclarante.h"

static Resultado declaranteAlta(const Argumentos &argumentos)
{
    if (auto fallo = tomarDatosAlta(argumentos))
        return *fallo;
    const auto &declarante = unico::la<cDecDatos>();
    const qint16 regla = declarante.ValidarDatosDeclarante(declarante.RegistroValidacion());
    if (regla != 0)
        return rechazado(
            msj(Msj::CliOpcionMal,
                conGuiones(opcionDe(campos::deValidacion(campoValidacionDeclarante(regla)))),
                textoValidacionDeclarante(regla)));
    const qint16 guardado = declarante.GuardarDeclarante(declarante.RegistroCompleto());
    if (guardado != 0)
        return rechazado(textoGuardarDeclarante(guardado));
    return hecho(msj(Msj::CliDeclaranteAlta, declarante.DNI(), declarante.NOMBRE()));
}

static constexpr Opcion Opciones[] = {
    {u"dni", u"DNI", Msj::AyudaDni, Opcion::Obligatoria},
    {u"nombre", u"TEXTO", Msj::AyudaNombre, Opcion::Obligatoria},
    {u"domicilio", u"TEXTO", Msj::AyudaDomicilio, Opcion::Obligatoria},
    {u"codpos", u"NNNNN", Msj::AyudaCodpos, Opcion::Obligatoria},
    {u"telefono", u"NNNNNNNNN", Msj::AyudaTelefono, Opcion::Obligatoria},
    {u"codmun", u"NNN", Msj::AyudaCodmun},
    {u"via", u"SIGLA", Msj::AyudaVia},
    {u"numero", u"N", Msj::AyudaNumero},
    {u"letra", u"L", Msj::AyudaLetra},
    {u"escalera", u"E", Msj::AyudaEscalera},
    {u"piso", u"P", Msj::AyudaPiso},
    {u"mano", u"M", Msj::AyudaMano},
    {u"codprov", u"NN", Msj::AyudaCodprov},
    {u"nommun", u"TEXTO", Msj::AyudaNommun},
};

extern constinit const Orden OrdenDeclaranteAlta = {
    u"declarante alta", Msj::AyudaAlta, {}, Opciones, Msj::NoSePudoGuardar, declaranteAlta,
};
