#include "core/TextoFallo.h"

#include "core/Textos.h"
#include "dataservice/ErrorDatos.h"

#include <QDir>

static Msj mensajeDe(Fallo fallo)
{
    switch (fallo) {
    case Fallo::NoExiste:
        return Msj::FalloNoExiste;
    case Fallo::Danada:
        return Msj::FalloDanada;
    case Fallo::Ajena:
        return Msj::FalloAjena;
    case Fallo::MasNueva:
        return Msj::FalloMasNueva;
    case Fallo::EnUso:
        return Msj::FalloEnUso;
    case Fallo::SinEspacio:
        return Msj::FalloSinEspacio;
    case Fallo::SoloLectura:
        return Msj::FalloSoloLectura;
    case Fallo::LecturaEscritura:
        return Msj::FalloLecturaEscritura;
    case Fallo::NoEncontrado:
        return Msj::FalloNoEncontrado;
    case Fallo::TieneDeclaraciones:
        return Msj::AvisoTieneDeclaraciones;
    }
    return Msj::FalloInterno;
}

QString textoFallo(const ErrorDatos &error)
{
    return msj(mensajeDe(error.fallo()), QDir::toNativeSeparators(error.objeto()));
}

QString textoFallo(const std::exception &error)
{
    if (const auto *datos = dynamic_cast<const ErrorDatos *>(&error))
        return textoFallo(*datos);
    return msj(Msj::FalloInterno, QString::fromUtf8(error.what()));
}

QString textoFalloActual()
{
    try {
        throw;
    } catch (const std::exception &error) {
        return textoFallo(error);
    } catch (...) {
        return msj(Msj::FalloInterno, QString());
    }
}
