#include "printing/Copias.h"

#include "core/Periodos.h"
#include "printing/cImOf.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

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
