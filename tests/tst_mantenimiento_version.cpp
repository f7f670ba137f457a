#include "core/Textos.h"
#include "core/Unico.h"
#include "maintenance/BuscarActualizacion.h"
#include "maintenance/PerfilPrivado.h"
#include "maintenance/VersionPublicada.h"
#include "maintenance/cActOnline.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "support/ServidorVersion.h"
#include "widgets/Navegador.h"
#include "widgets/PantallaBase.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static QByteArray respuesta(const QByteArray &version,
                            const QByteArray &direccion = "https://www.varlenda.example/x/y.exe")
{
    return "; comment\r\n[Otra]\r\ncurrentversion=9.9.9\r\n[INFORMACION]\r\nCurrentVersion = \""
        + version + "\"\r\ndownloadurl=" + direccion
        + "\r\nDescripcion= 'Correcci\xf3n: a, b; c \x80'\r\ncurrentversion=8.8.8\r\n";
}

/// The check for a newer version against real servers, good and hostile.
class PruebaVersion : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;

    QByteArray fichero(const QString &nombre) const
    {
        QFile f(m_entorno->ruta(nombre));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    static cActOnline &preparar(const QString &url)
    {
        auto &estado = unico::la<cActOnline>();
        estado.espera = 0ms;
        estado.limite = 400ms;
        estado.URLAct(url);
        estado.ProgVer1(u"1"_s);
        estado.ProgVer2(u"20"_s);
        estado.ProgVer3(u"3"_s);
        return estado;
    }
    /// Runs the check, closing each screen that it shows after `conEl`; their names.
    static QStringList buscar(const std::function<void(PantallaBase &)> &conEl = {})
    {
        QStringList vistas;
        QTimer mirar;
        connect(&mirar, &QTimer::timeout, &mirar, [&] {
            for (auto *una : QApplication::topLevelWidgets()) {
                auto *pantalla = qobject_cast<PantallaBase *>(una);
                if (!pantalla || !pantalla->isVisible() || vistas.contains(una->objectName()))
                    continue;
                vistas.append(una->objectName());
                if (conEl)
                    conEl(*pantalla);
                Manos(*pantalla).pulsar("CmdContinuar");
            }
        });
        mirar.start(1);
        buscarActualizacion();
        return vistas;
    }

private Q_SLOTS:
    void init() { m_entorno.emplace(); }
    void cleanup()
    {
        navegador::sustituir({});
        m_entorno.reset();
        fijarIdioma(Idioma::Castellano);
    }

    void comparaPorTexto_data()
    {
        QTest::addColumn<QString>("publicada");
        QTest::addColumn<bool>("distinta");
        for (const char *igual : {"1.20.3", " 1 . 20 . 3 ", "1.20.3.7"})
            QTest::newRow(igual) << QString::fromLatin1(igual) << false;
        for (const char *otra : {"1.20.03", "1.20.4", "0.20.3", "1.19.3", "2.0.0"})
            QTest::newRow(otra) << QString::fromLatin1(otra) << true;
    }
    void comparaPorTexto()
    {
        QFETCH(QString, publicada);
        QTEST(versionesDistintas(publicada.split(u'.'), {u"1"_s, u"20"_s, u"3"_s}), "distinta");
        auto &estado = preparar({});
        estado.ComVer(1);
        QVERIFY(estado.TomarRespuesta(respuesta(publicada.toLatin1())));
        QTEST(estado.ComVer() == 1, "distinta");
    }

    void leeElPerfilComoLaPlataforma()
    {
        const auto leida = leerVersion(respuesta("1.2.3"));
        QVERIFY(leida);
        QCOMPARE(leida->partes, QStringList({u"1"_s, u"2"_s, u"3"_s}));
        QCOMPARE(leida->direccion, u"https://www.varlenda.example/x/y.exe"_s);
        QCOMPARE(leida->descripcion, u"Corrección: a, b; c €"_s);
        QCOMPARE(ficheroDe(leida->direccion), u"y.exe"_s);
        QCOMPARE(valorPerfil("\xEF\xBB\xBF[s]\nk=\xC3\xB1", u"S"_s, u"K"_s), u"ñ"_s);
        QVERIFY(!valorPerfil("[s]\n[t]\nk=1", u"s"_s, u"k"_s));
        QCOMPARE(valorPerfil("[s]\nk=", u"s"_s, u"k"_s), QString());
    }

    void servidorBueno_data()
    {
        QTest::addColumn<QString>("idioma");
        QTest::addColumn<QByteArray>("pedido");
        QTest::newRow("castellano") << u"C"_s << QByteArray("&idioma=c ");
        QTest::newRow("euskera") << u"E"_s << QByteArray("&idioma=e ");
    }
    void servidorBueno()
    {
        QFETCH(QString, idioma);
        QFETCH(QByteArray, pedido);
        m_entorno.emplace(idioma);
        ServidorVersion servidor([](QTcpSocket &c, const QByteArray &) {
            c.write("");
            ServidorVersion::responder(c, respuesta("1.20.2"));
        });
        auto &estado = preparar(servidor.direccion());
        QByteArray textos;
        const auto vistas = buscar([&](PantallaBase &pantalla) {
            const Manos manos(pantalla);
            QCOMPARE(estado.SitAct(), 0); // the version screen comes first
            for (const char *nombre : {"LblActual", "LblDisponible", "TxtUrl", "TxtPath"})
                textos += manos.texto(nombre).toUtf8() + '|';
            QCOMPARE(manos.control("TxtInfo")->property("plainText").toString(),
                     u"Corrección: a, b; c €"_s);
            QVERIFY(manos.control("CmdActualizar")->isEnabled());
        });
        QCOMPARE(vistas, QStringList(u"FrmVersionCheck"_s));
        QCOMPARE(textos, "1.20.3|1.20.2|https://www.varlenda.example/x/y.exe|y.exe|");
        QCOMPARE(estado.SitAct(), 3);
        QCOMPARE(fichero(u"version.ini"_s), respuesta("1.20.2"));
        QVERIFY(servidor.peticiones.first().startsWith(
            "GET /version?Programa=OSTREL%20DE%20SEGUROS&idioma="));
        QVERIFY(servidor.peticiones.first().contains(pedido));
    }

    void servidorHostil_data()
    {
        using Servidor = std::function<void(ServidorVersion &, QTcpSocket &, const QByteArray &)>;
        QTest::addColumn<Servidor>("conducta");
        QTest::addColumn<int>("situacion");
        const auto fila = [](const char *nombre, int situacion, const Servidor &conducta) {
            QTest::newRow(nombre) << conducta << situacion;
        };
        const auto cuerpo = [&](const char *nombre, int situacion, const QByteArray &texto,
                                const QByteArray &estado = "200 OK") {
            fila(nombre, situacion, [=](ServidorVersion &, QTcpSocket &c, const QByteArray &) {
                ServidorVersion::responder(c, texto, estado);
            });
        };
        const auto redirige = [&](const char *nombre, const QByteArray &lugar) {
            fila(nombre, 1, [=](ServidorVersion &, QTcpSocket &c, const QByteArray &) {
                ServidorVersion::responder(c, respuesta("1.20.3"), "302 Found",
                                           "Location: " + lugar + "\r\n");
            });
        };
        fila("silent", 1, [](ServidorVersion &, QTcpSocket &, const QByteArray &) {});
        fila("closes", 1, [](ServidorVersion &, QTcpSocket &c, const QByteArray &) { c.abort(); });
        fila("byte by byte", 1, [](ServidorVersion &s, QTcpSocket &c, const QByteArray &) {
            c.write("HTTP/1.1 200 OK\r\n\r\n");
            s.sinFin(c, "x", 20);
        });
        fila("endless body", 1, [](ServidorVersion &s, QTcpSocket &c, const QByteArray &) {
            c.write("HTTP/1.1 200 OK\r\n\r\n");
            s.sinFin(c, QByteArray(10000, 'x'));
        });
        fila("endless headers", 1, [](ServidorVersion &s, QTcpSocket &c, const QByteArray &) {
            c.write("HTTP/1.1 200 OK\r\n");
            s.sinFin(c, QByteArray("X-A: ").append(10000, 'x').append("\r\n"));
        });
        fila("cut short", 1, [](ServidorVersion &, QTcpSocket &c, const QByteArray &) {
            c.write("HTTP/1.1 200 OK\r\nContent-Length: 4000\r\n\r\n" + respuesta("1.20.3"));
            c.disconnectFromHost();
        });
        redirige("redirect loop", "/version");
        redirige("redirect to file", "file:///etc/passwd");
        redirige("redirect to ftp", "ftp://127.0.0.1/version");
        cuerpo("404", 1, respuesta("1.20.3"), "404 Not Found");
        cuerpo("1 MB value", 1, "[informacion]\r\ndescripcion=" + QByteArray(1 << 20, 'x'));
        cuerpo("HTML", 4, "<html><body>Not here</body></html>");
        cuerpo("empty", 4, "");
        cuerpo("missing key", 4, "[informacion]\r\ncurrentversion=1.20.3\r\ndescripcion=x\r\n");
        cuerpo("two parts", 4, respuesta("1.20"));
        cuerpo("no number", 4, respuesta("1.20.x"));
    }
    void servidorHostil()
    {
        QFETCH(std::function<void(ServidorVersion &, QTcpSocket &, const QByteArray &)>, conducta);
        QFETCH(int, situacion);
        ServidorVersion servidor(
            [&](QTcpSocket &c, const QByteArray &pedido) { conducta(servidor, c, pedido); });
        QFile vieja(m_entorno->ruta(u"version.ini"_s));
        QVERIFY(vieja.open(QIODevice::WriteOnly));
        vieja.write(respuesta("1.20.3")); // of an earlier check, never to be read again
        vieja.close();
        auto &estado = preparar(servidor.direccion());
        estado.SitAct(3);
        QElapsedTimer reloj;
        reloj.start();
        QStringList textos;
        const auto vistas = buscar([&](PantallaBase &pantalla) {
            QCOMPARE(int(estado.SitAct()), situacion);
            const Manos manos(pantalla);
            textos
                = {manos.texto("lblTituloC"), manos.texto("lblTituloE"), manos.texto("lblMensaje")};
        });
        QCOMPARE(vistas, QStringList(u"FrmSinConexion"_s));
        QVERIFY(reloj.elapsed() < estado.limite.count() + 600);
        QCOMPARE(int(estado.SitAct()), situacion);
        if (situacion == 1)
            QCOMPARE(textos,
                     QStringList({u"Fallo en la conexión"_s, u"Konexio akatsa gertatu da"_s,
                                  u"No dispone de conexión a Internet en estos momentos o el "
                                  "servidor se encuentra inactivo"_s}));
        else
            QCOMPARE(textos,
                     QStringList({u"Datos erroneos"_s, u"Datu okerrak dira"_s,
                                  u"Error en la recuperación o lectura de los datos de "
                                  "actualización."_s}));
        QVERIFY(servidor.peticiones.size() <= 4);
        QVERIFY(servidor.enviados < 500'000); // the system's buffers take some of it
    }

    void sinDireccionNoHayConexion_data()
    {
        QTest::addColumn<QString>("url");
        for (const char *url : {"", "file:///etc/passwd", "ftp://127.0.0.1/", "nada"})
            QTest::newRow(url) << QString::fromLatin1(url);
    }
    void sinDireccionNoHayConexion()
    {
        QFETCH(QString, url);
        auto &estado = preparar(url);
        QCOMPARE(buscar(), QStringList(u"FrmSinConexion"_s));
        QCOMPARE(estado.SitAct(), 1);
    }

    void igualNoMuestraNada()
    {
        ServidorVersion servidor([](QTcpSocket &c, const QByteArray &) {
            ServidorVersion::responder(c, respuesta("1.20.3"));
        });
        auto &estado = preparar(servidor.direccion());
        QCOMPARE(buscar(), QStringList());
        QCOMPARE(estado.SitAct(), 3);
        QCOMPARE(estado.ComVer(), 0);
    }

    void paginaTemporalDeDescarga_data()
    {
        QTest::addColumn<QByteArray>("direccion");
        QTest::addColumn<QByteArray>("accion"); // empty: refused
        const auto sana = [](const char *d) { QTest::newRow(d) << QByteArray(d) << QByteArray(d); };
        sana("https://www.varlenda.example/x/y.exe");
        sana("http://www.varlenda.example/a?b=1&c=%20");
        const auto otra = [](const char *d, const char *a) {
            QTest::newRow(d) << QByteArray(d) << QByteArray(a);
        };
        otra("https://v.example/' onload='alert(1)", "https://v.example/%27%20onload=%27alert(1)");
        otra("https://v.example/><script>", "https://v.example/%3E%3Cscript%3E");
        otra("javascript:alert(1)", "");
        otra("file:///etc/passwd", "");
        otra("//v.example/x", "");
        otra("https:", "");
    }
    void paginaTemporalDeDescarga()
    {
        QFETCH(QByteArray, direccion);
        QFETCH(QByteArray, accion);
        QFile vieja(m_entorno->ruta(u"temphtm.HTM"_s));
        QVERIFY(vieja.open(QIODevice::WriteOnly));
        vieja.write(QByteArray(2000, 'v'));
        vieja.close();
        ServidorVersion servidor([&](QTcpSocket &c, const QByteArray &) {
            ServidorVersion::responder(c, respuesta("2.0.0", direccion));
        });
        preparar(servidor.direccion());
        QList<QUrl> abiertas;
        navegador::sustituir([&](const QUrl &url) {
            abiertas.append(url);
            return true;
        });
        ConductorMensajes mensajes;
        if (accion.isEmpty())
            mensajes.responder(QMessageBox::Ok);
        buscar([](PantallaBase &pantalla) { Manos(pantalla).pulsar("CmdActualizar"); });
        if (accion.isEmpty()) {
            QVERIFY(abiertas.isEmpty());
            QVERIFY(mensajes.texto().contains(QString::fromLatin1(direccion)));
            return;
        }
        QCOMPARE(abiertas, {QUrl::fromLocalFile(m_entorno->ruta(u"temphtm.HTM"_s))});
        QCOMPARE(fichero(u"temphtm.HTM"_s),
                 QByteArray("<HTML> ") + " <BODY ONLOAD='document.formulario.submit();'> "
                     + " <FORM NAME='formulario' action='" + accion + "' method=post> "
                     + " </FORM></BODY> </HTML>");
    }

    void sinNavegador()
    {
        ServidorVersion servidor([&](QTcpSocket &c, const QByteArray &) {
            ServidorVersion::responder(c, respuesta("2.0.0"));
        });
        preparar(servidor.direccion());
        navegador::sustituir([](const QUrl &) { return false; });
        ConductorMensajes mensajes;
        mensajes.responder(QMessageBox::Ok);
        bool sigue = false;
        buscar([&](PantallaBase &pantalla) {
            Manos(pantalla).pulsar("CmdActualizar");
            sigue = pantalla.isVisible();
        });
        const auto cajas = mensajes.tomar();
        QCOMPARE(cajas.size(), 1);
        QCOMPARE(cajas[0].titulo, u"Navegador no encontrado"_s);
        QCOMPARE(cajas[0].texto, u"No se ha encontrado el navegador"_s);
        QVERIFY(sigue);
    }
};

QTEST_MAIN(PruebaVersion)
#include "tst_mantenimiento_version.moc"
