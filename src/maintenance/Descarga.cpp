#include "maintenance/Descarga.h"

#include "maintenance/VersionPublicada.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QNetworkProxyFactory>
#include <QRegularExpression>
#include <QSslSocket>
#include <QTimer>

using namespace Qt::StringLiterals;

// A plain socket: QNetworkAccessManager takes header lines without any bound, and once it is at
// them it cannot be stopped for seconds.

static constexpr qint64 BytesMaximos = 65'536;
static constexpr int RedireccionesMaximas = 3;

namespace {

struct Respuesta
{
    int estado = 0;
    QByteArray cuerpo;
    QString lugar; ///< of a redirection
    bool entera = false;
};

} // namespace

static QByteArray cabecera(const QByteArray &cabeceras, const QByteArray &nombre)
{
    for (const QByteArray &linea : cabeceras.split('\n')) {
        const auto separador = linea.indexOf(':');
        if (linea.first(std::max<qsizetype>(separador, 0)).compare(nombre, Qt::CaseInsensitive)
            == 0)
            return linea.mid(separador + 1).trimmed();
    }
    return {};
}

/// What `leido` holds of an answer; it ends with the connection unless it says its length.
static Respuesta interpretar(const QByteArray &leido, bool cerrada)
{
    static const QRegularExpression primera(u"^HTTP/1\\.[01] (\\d{3})\\b"_s);
    Respuesta respuesta;
    const auto fin = leido.indexOf("\r\n\r\n");
    const auto estado = primera.match(QString::fromLatin1(leido.left(20)));
    if (fin < 0 || !estado.hasMatch())
        return respuesta;
    const QByteArray cabeceras = leido.first(fin);
    const QByteArray largo = cabecera(cabeceras, "Content-Length");
    respuesta.estado = estado.captured(1).toInt();
    respuesta.lugar = QString::fromUtf8(cabecera(cabeceras, "Location"));
    respuesta.cuerpo = leido.mid(fin + 4);
    if (largo.isEmpty()) {
        respuesta.entera = cerrada && cabecera(cabeceras, "Transfer-Encoding").isEmpty();
    } else {
        respuesta.entera = respuesta.cuerpo.size() >= largo.toLongLong();
        respuesta.cuerpo.truncate(largo.toLongLong());
    }
    return respuesta;
}

static QByteArray peticion(const QUrl &url, bool absoluta)
{
    const QUrl::FormattingOptions sobra = absoluta
        ? QUrl::RemoveFragment | QUrl::RemoveUserInfo
        : QUrl::RemoveFragment | QUrl::RemoveScheme | QUrl::RemoveAuthority;
    QByteArray objeto = url.toEncoded(sobra);
    if (!absoluta && !objeto.startsWith('/'))
        objeto.prepend('/');
    const QByteArray puerto = url.port() < 0 ? QByteArray() : ':' + QByteArray::number(url.port());
    return "GET " + objeto + " HTTP/1.0\r\nHost: " + url.host(QUrl::FullyEncoded).toLatin1()
        + puerto + "\r\nAccept: */*\r\nConnection: close\r\n\r\n";
}

/// One request over a connection of its own.
static Respuesta pedir(const QUrl &url, const QDeadlineTimer &hasta)
{
    const bool cifrada = url.scheme() == u"https";
    const auto proxy = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url)).value(0);
    // a proxy of the web takes plain requests whole; for anything else it is tunnelled through
    const bool porProxy = !cifrada && !proxy.hostName().isEmpty()
        && (proxy.type() == QNetworkProxy::HttpProxy
            || proxy.type() == QNetworkProxy::HttpCachingProxy);
    QSslSocket conexion;
    conexion.setProxy(porProxy ? QNetworkProxy(QNetworkProxy::NoProxy) : proxy);
    conexion.setReadBufferSize(BytesMaximos);
    QByteArray leido;
    QEventLoop espera;
    QTimer::singleShot(std::chrono::milliseconds(hasta.remainingTime()), &espera,
                       &QEventLoop::quit);
    const auto preguntar = [&] { conexion.write(peticion(url, porProxy)); };
    const auto leer = [&] {
        leido += conexion.read(BytesMaximos + 1 - leido.size());
        if (leido.size() > BytesMaximos || interpretar(leido, false).entera)
            espera.quit();
    };
    QObject::connect(&conexion, &QSslSocket::readyRead, &espera, leer);
    QObject::connect(&conexion, &QSslSocket::disconnected, &espera, &QEventLoop::quit);
    QObject::connect(&conexion, &QSslSocket::errorOccurred, &espera, &QEventLoop::quit);
    if (cifrada) {
        QObject::connect(&conexion, &QSslSocket::encrypted, &espera, preguntar);
        conexion.connectToHostEncrypted(url.host(), static_cast<quint16>(url.port(443)));
    } else {
        QObject::connect(&conexion, &QSslSocket::connected, &espera, preguntar);
        conexion.connectToHost(porProxy ? proxy.hostName() : url.host(),
                               porProxy ? proxy.port() : static_cast<quint16>(url.port(80)));
    }
    espera.exec();
    leido += conexion.read(BytesMaximos + 1 - leido.size());
    const bool cerrada = conexion.error() == QSslSocket::RemoteHostClosedError;
    conexion.disconnect();
    conexion.abort();
    return leido.size() > BytesMaximos ? Respuesta{} : interpretar(leido, cerrada);
}

std::optional<QByteArray> descargar(const QString &direccion, std::chrono::milliseconds limite)
{
    const QDeadlineTimer hasta(limite);
    QUrl url(direccion);
    for (int vez = 0; vez <= RedireccionesMaximas && direccionSegura(url.toString()); ++vez) {
        const Respuesta respuesta = pedir(url, hasta);
        if (!respuesta.entera || hasta.hasExpired())
            return {};
        if (respuesta.estado == 200)
            return respuesta.cuerpo;
        if (respuesta.estado < 300 || respuesta.estado > 399 || respuesta.lugar.isEmpty())
            return {};
        const QUrl siguiente = url.resolved(QUrl(respuesta.lugar));
        if (url.scheme() == u"https" && siguiente.scheme() != u"https")
            return {};
        url = siguiente;
    }
    return {};
}
