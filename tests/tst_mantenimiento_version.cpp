#include "maintenance/BuscarActualizacion.h"
#include "maintenance/PerfilPrivado.h"
#include "maintenance/VersionPublicada.h"
#include "maintenance/cActOnline.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "support/ServidorPrueba.h"
#include "support/ServidorVersion.h"
#include "widgets/Navegador.h"
#include "widgets/PantallaBase.h"

#include <QElapsedTimer>

using namespace std::chrono_literals;

static QByteArray respuesta(const QByteArray &version,
                            const QByteArray &direccion = "https://www.varlenda.example/x/y.exe")
{
    return "; comment\r\n[Otra]\r\ncurrentversion=9.9.9\r\n[INFORMACION]\r\nCurrentVersion = \""
        + version + "\"\r\ndownloadurl=" + direccion
        + "\r\nDescripcion= 'Correcci\xf3n: a, b; c \x80'\r\ncurrentversion=8.8.8\r\n";
}

/// The check for a newer version against real servers, good and hostile.
class TstMantenimientoVersion : public QObject
{
    Q_OBJECT

private:
    using Conducta = std::function<void(ServidorVersion &, QTcpSocket &)>;

    std::optional<Entorno> m_entorno;

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

    void comparaPorTexto()
    {
        const auto distinta = [](const char *publicada) {
            auto &estado = preparar({});
            estado.ComVer(1 - estado.ComVer()); // whatever it said before
            if (!estado.TomarRespuesta(respuesta(publicada)))
                QTest::qFail(publicada, __FILE__, __LINE__);
            return estado.ComVer() == 1;
        };
        for (const char *igual : {"1.20.3", " 1 . 20 . 3 ", "1.20.3.7"})
            QVERIFY2(!distinta(igual), igual);
        for (const char *otra : {"1.20.03", "1.20.4", "0.20.3", "1.19.3", "2.0.0"})
            QVERIFY2(distinta(otra), otra);
    }

    void leeElPerfilComoLaPlataforma()
    {
        const auto leida = leerVersion(respuesta("1.2.3"));
        QVERIFY(leida);
        QCOMPARE(leida->partes.join(u'.'), u"1.2.3"_s); // the rest is seen on the screen
        QCOMPARE(valorPerfil("\xEF\xBB\xBF[s]\nk=\xC3\xB1", u"S"_s, u"K"_s), u"ñ"_s);
        QVERIFY(!valorPerfil("k=1\n[s]\n[t]\nk=1", u"s"_s, u"k"_s));
        QCOMPARE(valorPerfil("[s]\nk=", u"s"_s, u"k"_s), QString());
    }

    void servidorBueno()
    {
        for (const QString &idioma : {u"C"_s, u"E"_s}) {
            m_entorno.emplace(idioma);
            ServidorVersion servidor(respuesta("1.20.2"));
            auto &estado = preparar(servidor.direccion());
            QString textos;
            const auto vistas = buscar([&](PantallaBase &pantalla) {
                const Manos manos(pantalla);
                QCOMPARE(estado.SitAct(), 0); // the version screen comes first
                textos = manos.textos("LblActual LblDisponible TxtUrl TxtPath");
                QCOMPARE(manos.control("TxtInfo")->property("plainText").toString(),
                         u"Corrección: a, b; c €"_s);
                QVERIFY(manos.control("CmdActualizar")->isEnabled());
            });
            QCOMPARE(vistas, QStringList(u"FrmVersionCheck"_s));
            QCOMPARE(textos, u"1.20.3|1.20.2|https://www.varlenda.example/x/y.exe|y.exe"_s);
            QCOMPARE(estado.SitAct(), 3);
            QCOMPARE(bytes(m_entorno->ruta(u"version.ini"_s)), respuesta("1.20.2"));
            const QString pedido = u"GET /version?Programa=OSTREL%20DE%20SEGUROS&idioma="_s;
            QVERIFY(servidor.peticiones.first().startsWith(
                (pedido + idioma.toLower() + u' ').toUtf8()));
        }
    }

    void servidorHostil_data()
    {
        QTest::addColumn<Conducta>("conducta");
        QTest::addColumn<int>("situacion");
        const auto fila = [](const char *nombre, const Conducta &conducta, int situacion = 1) {
            QTest::newRow(nombre) << conducta << situacion;
        };
        const auto cuerpo = [&](const char *nombre, int situacion, const QByteArray &texto,
                                const char *estado = "200 OK", const QByteArray &mas = {}) {
            fila(
                nombre, [=](auto &, auto &c) { ServidorVersion::responder(c, texto, estado, mas); },
                situacion);
        };
        const auto redirige = [&](const char *nombre, const QByteArray &lugar) {
            cuerpo(nombre, 1, respuesta("1.20.3"), "302 Found", "Location: " + lugar + "\r\n");
        };
        const auto sinFin
            = [&](const char *nombre, const char *cabecera, const QByteArray &trozo, int cada = 0) {
                  fila(nombre, [=](auto &servidor, auto &c) {
                      c.write("HTTP/1.1 200 OK\r\n");
                      c.write(cabecera);
                      servidor.sinFin(c, trozo, cada);
                  });
              };
        fila("silent", [](auto &, auto &) {});
        fila("closes", [](auto &, auto &c) { c.abort(); });
        sinFin("byte by byte", "\r\n", "x", 20);
        sinFin("endless body", "\r\n", QByteArray(10000, 'x'));
        sinFin("endless headers", "", QByteArray("X-A: ").append(10000, 'x').append("\r\n"));
        fila("cut short", [](auto &, auto &c) {
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
        QFETCH(Conducta, conducta);
        QFETCH(int, situacion);
        ServidorVersion servidor([&](QTcpSocket &c, const QByteArray &) { conducta(servidor, c); });
        // of an earlier check, never to be read again
        escribir(m_entorno->ruta(u"version.ini"_s), respuesta("1.20.3"));
        auto &estado = preparar(servidor.direccion());
        estado.SitAct(3);
        QElapsedTimer reloj;
        reloj.start();
        QString textos;
        const auto vistas = buscar([&](PantallaBase &pantalla) {
            QCOMPARE(int(estado.SitAct()), situacion);
            textos = Manos(pantalla).textos("lblTituloC lblTituloE lblMensaje");
        });
        QCOMPARE(vistas, QStringList(u"FrmSinConexion"_s));
        QVERIFY(reloj.elapsed() < estado.limite.count() + 600);
        QCOMPARE(int(estado.SitAct()), situacion);
        QCOMPARE(textos,
                 situacion == 1
                     ? u"Fallo en la conexión|Konexio akatsa gertatu da|No dispone de "
                       "conexión a Internet en estos momentos o el servidor se encuentra "
                       "inactivo"_s
                     : u"Datos erroneos|Datu okerrak dira|Error en la recuperación o "
                       "lectura de los datos de actualización."_s);
        QVERIFY(servidor.peticiones.size() <= 4);
        QVERIFY(servidor.enviados < 500'000); // the system's buffers take some of it
    }

    void sinDireccionNoHayConexion()
    {
        for (const char *url : {"", "file:///etc/passwd", "ftp://127.0.0.1/", "nada"}) {
            auto &estado = preparar(QString::fromLatin1(url));
            estado.SitAct(0);
            QCOMPARE(buscar(), QStringList(u"FrmSinConexion"_s));
            QVERIFY2(estado.SitAct() == 1, url);
        }
    }

    void igualNoMuestraNada()
    {
        ServidorVersion servidor(respuesta("1.20.3"));
        auto &estado = preparar(servidor.direccion());
        QCOMPARE(buscar(), QStringList());
        QCOMPARE(estado.SitAct(), 3);
        QCOMPARE(estado.ComVer(), 0);
    }

    void paginaTemporalDeDescarga()
    {
        const QByteArray sana = "http://www.varlenda.example/a?b=1&c=%20";
        const QByteArray v = "https://v.example/";
        const QByteArray sinNavegador = "https://v.example/none";
        for (const auto &[direccion, accion] : // refused without an action
             {std::pair{sana, sana},
              {sinNavegador, sinNavegador},
              {v + "' onload='alert(1)", v + "%27%20onload=%27alert(1)"},
              {v + "><script>", v + "%3E%3Cscript%3E"},
              {QByteArray("javascript:alert(1)"), {}},
              {QByteArray("file:///etc/passwd"), {}},
              {QByteArray("//v.example/x"), {}},
              {QByteArray("https:"), {}}}) {
            const QString pagina = m_entorno->ruta(u"temphtm.HTM"_s);
            const QByteArray antes(2000, 'v');
            escribir(pagina, antes);
            ServidorVersion servidor(respuesta("2.0.0", direccion));
            preparar(servidor.direccion());
            QList<QUrl> abiertas;
            const bool hayNavegador = direccion != sinNavegador;
            navegador::sustituir([&](const QUrl &url) {
                abiertas.append(url);
                return hayNavegador;
            });
            ConductorMensajes mensajes;
            if (accion.isEmpty() || !hayNavegador)
                mensajes.responder(QMessageBox::Ok);
            buscar([](PantallaBase &pantalla) { Manos(pantalla).pulsar("CmdActualizar"); });
            const QString dicho = mensajes.ficha();
            QVERIFY2(dicho.contains(accion.isEmpty()   ? QString::fromLatin1(direccion)
                                        : hayNavegador ? QString()
                                                       : u"|Navegador no encontrado|No se ha "
                                                         "encontrado el navegador|"_s),
                     qPrintable(dicho));
            QCOMPARE(abiertas.value(0), accion.isEmpty() ? QUrl() : QUrl::fromLocalFile(pagina));
            QCOMPARE(bytes(pagina),
                     accion.isEmpty() ? antes
                                      : "<HTML>  <BODY ONLOAD='document.formulario.submit();'>  "
                                        "<FORM NAME='formulario' action='"
                             + accion + "' method=post>  </FORM></BODY> </HTML>");
        }
    }
};

QTEST_MAIN(TstMantenimientoVersion)
#include "tst_mantenimiento_version.moc"
