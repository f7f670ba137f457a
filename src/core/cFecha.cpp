#include "core/cFecha.h"

#include <QDate>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString cFecha::FecVacia() const
{
    return castellano() ? u"__/__/____"_s : u"____/__/__"_s;
}

QString cFecha::Mascara() const
{
    return castellano() ? u"99/99/9999;_"_s : u"9999/99/99;_"_s;
}

QString cFecha::Formato() const
{
    return castellano() ? u"dd/MM/yyyy"_s : u"yyyy/MM/dd"_s;
}

int cFecha::miYear() const
{
    return QDate::currentDate().year();
}

bool cFecha::EsFecha(const QString &texto) const
{
    return StringToLong(texto) != 0;
}

qint32 cFecha::StringToLong(const QString &texto) const
{
    static const QRegularExpression diaPrimero(
        u"\\A(?<d>\\d{1,2})/(?<m>\\d{1,2})/(?<a>\\d{4})\\z"_s);
    static const QRegularExpression annoPrimero(
        u"\\A(?<a>\\d{4})/(?<m>\\d{1,2})/(?<d>\\d{1,2})\\z"_s);
    const auto partes = (castellano() ? diaPrimero : annoPrimero).match(texto);
    const QDate fecha(partes.captured(u"a").toInt(), partes.captured(u"m").toInt(),
                      partes.captured(u"d").toInt());
    return fecha.isValid() ? fecha.year() * 10000 + fecha.month() * 100 + fecha.day() : 0;
}

QString cFecha::LongToString(qint32 fecha) const
{
    const QString anno = QString::number(fecha / 10000).rightJustified(4, u'0');
    const QString mes = QString::number(fecha / 100 % 100).rightJustified(2, u'0');
    const QString dia = QString::number(fecha % 100).rightJustified(2, u'0');
    return (castellano() ? QStringList{dia, mes, anno} : QStringList{anno, mes, dia}).join(u'/');
}
