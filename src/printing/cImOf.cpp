#include "printing/cImOf.h"

#include "core/Textos.h"
#include "core/cFecha.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

void cImOf::PedirOficial()
{
    m_tipoimp = u"O"_s;
    m_copiaadm = m_copiaint = u"X"_s;
}

void cImOf::PedirBorrador()
{
    m_tipoimp = u"B"_s;
    m_copiaadm.clear();
    m_copiaint.clear();
}

bool cImOf::HayCopias() const
{
    return m_tipoimp == u"B" || m_copiaint == u"X" || m_copiaadm == u"X";
}

QStringList copiasPedidas(const cImOf &peticion)
{
    if (peticion.MODELO() != Modelo430 && peticion.MODELO() != Modelo480)
        return {};
    if (peticion.TIPOIMP() == u"B")
        return {CopiaBorrador.toString()};
    QStringList copias;
    if (peticion.COPIAADM() == u"X")
        copias << CopiaAdministracion.toString();
    if (peticion.COPIAINT() == u"X")
        copias << CopiaInteresado.toString();
    return copias;
}

QString nombrePdf(const QString &modelo, int ejercicio, int periodo, const QString &nif,
                  const QStringList &copias)
{
    static const QRegularExpression prohibidos(u"[^A-Za-z0-9.-]"_s);
    QString tiempo = QString::number(ejercicio);
    if (modelo == Modelo430)
        tiempo += u'-' + QString::number(periodo).rightJustified(2, u'0');
    const QString identidad = QString(nif).replace(prohibidos, u"_"_s);
    return QStringList{modelo, tiempo, identidad, copias.join(u'-')}.join(u'_') + u".pdf"_s;
}

static FechaPresentacion rechazada(const QString &mensaje)
{
    return {0, msj(Msj::TituloErrorDatosFecha), mensaje};
}

FechaPresentacion comprobarFechaPresentacion(const QString &texto, const cFecha &fechas)
{
    if (!fechas.EsFecha(texto))
        return rechazada(msj(Msj::ErrorFechaPresentacion));
    const qint32 fecha = fechas.StringToLong(texto);
    if (fecha < PrimeraFechaPresentacion)
        return rechazada(
            msj(Msj::ErrorFechaAnterior, fechas.LongToString(PrimeraFechaPresentacion)));
    return {fecha, {}, {}};
}
