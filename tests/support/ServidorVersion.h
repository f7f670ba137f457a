#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

/// A version service on this machine, which may behave as badly as it likes: `atiende` gets each
/// connection with what was asked on it.
class ServidorVersion : public QTcpServer
{
public:
    using Conducta = std::function<void(QTcpSocket &, const QByteArray &peticion)>;

    explicit ServidorVersion(Conducta conducta)
        : m_conducta(std::move(conducta))
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            auto *conexion = nextPendingConnection();
            connect(conexion, &QTcpSocket::readyRead, this, [this, conexion] {
                peticiones.append(conexion->readAll());
                m_conducta(*conexion, peticiones.last());
            });
        });
    }

    /// Answers everything with this body.
    explicit ServidorVersion(const QByteArray &cuerpo)
        : ServidorVersion([cuerpo](QTcpSocket &c, const QByteArray &) { responder(c, cuerpo); })
    {
    }

    QString direccion() const { return u"http://127.0.0.1:%1/version"_s.arg(serverPort()); }

    QList<QByteArray> peticiones;
    qint64 enviados = 0; ///< bytes that reached the system's buffers

    /// A sound answer with this body.
    static void responder(QTcpSocket &conexion, const QByteArray &cuerpo,
                          const QByteArray &estado = "200 OK", const QByteArray &cabeceras = {})
    {
        conexion.write("HTTP/1.1 " + estado + "\r\nContent-Type: text/plain\r\nContent-Length: "
                       + QByteArray::number(cuerpo.size()) + "\r\n" + cabeceras
                       + "Connection: close\r\n\r\n" + cuerpo);
        conexion.disconnectFromHost();
    }

    /// Writes `trozo` again and again, as fast as it is taken or every `cada` milliseconds.
    void sinFin(QTcpSocket &conexion, const QByteArray &trozo, int cada = 0)
    {
        if (cada == 0) {
            connect(&conexion, &QTcpSocket::bytesWritten, this, [this, trozo, &conexion](qint64 n) {
                enviados += n;
                conexion.write(trozo);
            });
            conexion.write(trozo);
            return;
        }
        auto *reloj = new QTimer(&conexion);
        connect(reloj, &QTimer::timeout, &conexion, [&conexion, trozo] { conexion.write(trozo); });
        reloj->start(cada);
    }

private:
    Conducta m_conducta;
};
