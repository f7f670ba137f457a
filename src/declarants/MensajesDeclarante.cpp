#include "declarants/MensajesDeclarante.h"

#include "core/CEntrada.h"
#include "core/Rutas.h"
#include "core/Textos.h"
#include "core/Unico.h"

#include <QDir>

using namespace Qt::StringLiterals;

static bool deDeclarante(qint16 codigo)
{
    return codigo >= qint16(Regla::Dni) && codigo <= qint16(Regla::Telefono);
}

QString textoValidacionDeclarante(qint16 codigo)
{
    return deDeclarante(codigo) ? msjDesde(Msj::ErrorDni, codigo - 1) : QString();
}

RegValidacion::Campo campoValidacionDeclarante(qint16 codigo)
{
    using enum RegValidacion::Campo;
    static constexpr RegValidacion::Campo campos[] = {
        DNI,    NOMBRE, DOMICILIO, CODPROV, CODPOS,   CODPOS,
        CODPOS, CODPOS, CODMUN,    NOMMUN,  TELEFONO, TELEFONO,
    };
    return deDeclarante(codigo) ? campos[codigo - 1] : Total;
}

QString textoGuardarDeclarante(qint16 codigo)
{
    if (codigo == qint16(Guardado::NoValido))
        return msj(Msj::FalloRestriccion, QDir::toNativeSeparators(rutas().datos));
    return codigo == qint16(Guardado::AltaDniExiste) || codigo == qint16(Guardado::CambioDniExiste)
        ? msjDesde(Msj::ErrorAltaDniExiste, codigo - 1)
        : QString();
}

static QString limite(int ejercicio, int periodo)
{
    return u"%1-%2"_s.arg(ejercicio).arg(periodo, 2, 10, QChar(u'0'));
}

QString textoCabecera(qint16 codigo)
{
    if (codigo < qint16(ReglaCabecera::Ejercicio) || codigo > qint16(ReglaCabecera::Existe))
        return {};
    QString texto = msjDesde(Msj::ErrorEjercicioVacio, codigo - 1);
    if (codigo != qint16(ReglaCabecera::Fuera))
        return texto;
    const auto &entrada = unico::la<CEntrada>();
    return texto.arg(limite(entrada.EJERMIN(), entrada.PERMIN()),
                     limite(entrada.EJERMAX(), entrada.PERMAX()));
}
