#include "maintenance/VersionPublicada.h"

#include "maintenance/PerfilPrivado.h"

#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int Partes = 3;

static bool esNumero(const QString &parte)
{
    return !parte.isEmpty()
        && std::ranges::all_of(parte, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

std::optional<VersionPublicada> leerVersion(const QByteArray &respuesta)
{
    const auto valor
        = [&](const QString &clave) { return valorPerfil(respuesta, u"informacion"_s, clave); };
    const auto version = valor(u"currentversion"_s);
    const auto direccion = valor(u"downloadurl"_s);
    const auto descripcion = valor(u"descripcion"_s);
    if (!version || !direccion || !descripcion)
        return {};
    VersionPublicada publicada{version->split(u'.').mid(0, Partes), direccion->trimmed(),
                               descripcion->trimmed()};
    for (QString &parte : publicada.partes)
        parte = parte.trimmed();
    if (publicada.partes.size() < Partes || !std::ranges::all_of(publicada.partes, esNumero))
        return {};
    return publicada;
}

bool versionesDistintas(const QStringList &una, const QStringList &otra)
{
    for (int i = 0; i < Partes; ++i) {
        if (una.value(i).trimmed() != otra.value(i).trimmed())
            return true;
    }
    return false;
}

QString ficheroDe(const QString &direccion)
{
    return QUrl(direccion).fileName();
}

bool direccionSegura(const QString &direccion)
{
    const QUrl url(direccion);
    return url.isValid() && !url.host().isEmpty()
        && (url.scheme() == u"http" || url.scheme() == u"https");
}

static QByteArray paraAtributo(const QString &direccion)
{
    QByteArray segura;
    for (const char c : direccion.toUtf8()) {
        const bool tal_cual = c > ' ' && c < '\x7f' && !QByteArrayView("'\"<>`\\").contains(c);
        segura += tal_cual ? QByteArray(1, c) : '%' + QByteArray(1, c).toHex().toUpper();
    }
    return segura;
}

QByteArray paginaTemporal(const QString &direccion)
{
    return "<HTML>  <BODY ONLOAD='document.formulario.submit();'>  <FORM NAME='formulario' action='"
        + paraAtributo(direccion) + "' method=post>  </FORM></BODY> </HTML>";
}
