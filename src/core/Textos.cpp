#include "core/Textos.h"

#include "dataservice/ErrorDatos.h"
#include "resources/TablaMensajes.h"

#include <QDir>

using namespace Qt::StringLiterals;

static Idioma &actual()
{
    static auto idioma = Idioma::Castellano;
    return idioma;
}

Idioma idiomaSesion()
{
    return actual();
}

void fijarIdioma(Idioma idioma)
{
    actual() = idioma;
}

qint16 desplazamientoIdioma()
{
    return desplazamiento(actual());
}

QString msj(Msj cual, Idioma idioma)
{
    return textoMensaje(static_cast<int>(cual), idioma);
}

QString msj(Msj cual)
{
    return msj(cual, actual());
}

QString msjDesde(Msj primera, int k)
{
    return textoMensaje(static_cast<int>(primera) + k, actual());
}

QString elegir(const QString &castellano, const QString &euskera, Idioma idioma)
{
    return idioma == Idioma::Castellano ? castellano : euskera;
}

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
    case Fallo::EnlaceRoto:
        return Msj::FalloEnlaceRoto;
    case Fallo::Lectura:
        return Msj::FalloLectura;
    case Fallo::Incompleta:
        return Msj::FalloIncompleta;
    case Fallo::Restriccion:
        return Msj::FalloRestriccion;
    case Fallo::TiposDeMas:
        return Msj::FalloTiposDeMas;
    case Fallo::SinDeclarante:
        return Msj::FalloSinDeclarante;
    case Fallo::SinDeclaracion:
        return Msj::FalloSinDeclaracion;
    case Fallo::NoEsFichero:
        return Msj::FalloNoEsFichero;
    case Fallo::EsElPropio:
        return Msj::FalloEsElPropio;
    case Fallo::TieneDeclaraciones:
        return Msj::AvisoTieneDeclaraciones;
    case Fallo::RegistroDanado:
        return Msj::FalloRegistroDanado;
    }
    return Msj::FalloInterno;
}

QString textoFallo(const ErrorDatos &error)
{
    const bool deUnaFila
        = error.fallo() == Fallo::SinDeclarante || error.fallo() == Fallo::SinDeclaracion;
    const bool conservado = error.fallo() == Fallo::RegistroDanado;
    const QString objeto = conservado ? error.objeto()
        : !deUnaFila                  ? QDir::toNativeSeparators(error.objeto())
        : error.objeto().isEmpty()    ? QString()
                                      : u" «%1»"_s.arg(error.objeto());
    return msj(mensajeDe(error.fallo()), objeto);
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

static constexpr QStringView Meses[UltimoMes][2] = {
    {u"ENERO", u"URTARRILA"}, {u"FEBRERO", u"OTSAILA"},  {u"MARZO", u"MARTXOA"},
    {u"ABRIL", u"APIRILA"},   {u"MAYO", u"MAIATZA"},     {u"JUNIO", u"EKAINA"},
    {u"JULIO", u"UZTAILA"},   {u"AGOSTO", u"ABUZTUA"},   {u"SEPTIEMBRE", u"IRAILA"},
    {u"OCTUBRE", u"URRIA"},   {u"NOVIEMBRE", u"AZAROA"}, {u"DICIEMBRE", u"ABENDUA"},
};

QString nombreMes(int mes, Idioma idioma)
{
    if (mes < 1 || mes > UltimoMes)
        return {};
    return elegir(Meses[mes - 1][0].toString(), Meses[mes - 1][1].toString(), idioma);
}

QString palabraPeriodicidad(int periodicidad, Idioma idioma)
{
    return periodicidad == PeriodicidadAnual ? elegir(u"ANUAL"_s, u"URTEKOA"_s, idioma) : QString();
}

QString textoPeriodo(int periodicidad, int periodo, Idioma idioma)
{
    return periodicidad == PeriodicidadAnual ? palabraPeriodicidad(periodicidad, idioma)
                                             : nombreMes(periodo, idioma);
}
