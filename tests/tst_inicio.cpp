#include "app/Arranque.h"
#include "app/MDIOstrel.h"
#include "server/Servidor.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/LineasPrueba.h"
#include "support/Manos.h"

#include <QElapsedTimer>
#include <QPointer>

using namespace std::chrono_literals;

namespace {

/// A data service that asks the program to end.
class TraspasoQueTermina : public SvrOstr::cTraspaso
{
public:
    void mdbmod(const QString &) override {}
    void mdbPath(const QString &) override {}
    bool Traspaso() override { return true; }
    void Comprobar() override {}
};

} // namespace

/// The way from the start of the program to its main window.
class TstInicio : public QObject
{
    Q_OBJECT

private:
    static constexpr EsperasInicio Breves{20ms, 60ms};

    std::optional<Entorno> m_entorno;
    std::optional<ConductorMensajes> m_mensajes;

    /// Does something with a window as soon as it is there, while the start-up runs.
    static void cuandoEste(const QString &nombre, const std::function<void(QWidget &)> &accion)
    {
        auto *reloj = new QTimer(qApp);
        connect(reloj, &QTimer::timeout, reloj, [=] {
            if (auto *hallada = ventanaVisible(nombre)) {
                reloj->deleteLater();
                reloj->stop();
                accion(*hallada);
            }
        });
        reloj->start(1);
    }

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setApplicationVersion(u"1.2.3"_s); }
    void init()
    {
        m_entorno.emplace();
        m_mensajes.emplace();
    }
    void cleanup()
    {
        m_mensajes.reset();
        m_entorno.reset();
        fijarIdioma(Idioma::Castellano);
    }

    void terminaSinMensajesSiLoPideElServicio()
    {
        servicio::registrar(SvrOstr::cTraspaso::ID,
                            [] { return std::make_unique<TraspasoQueTermina>(); });
        bool mostrado = false;
        cuandoEste(u"frmInicio"_s, [&](QWidget &) { mostrado = true; });
        QVERIFY(!Arranque(Breves).iniciar());
        registrarServidor();
        QVERIFY(!mostrado);
        qDeleteAll(qApp->findChildren<QTimer *>());
    }

    void inicioMuestraVersionYAbreLaVentana()
    {
        QStringList visto;
        cuandoEste(u"frmInicio"_s, [&](QWidget &inicio) {
            const Manos manos(inicio);
            visto = QStringList{manos.texto("lblVersion"), manos.texto("lblTitulo"),
                                manos.control("lblAct")->isVisible() ? u"buscando"_s : QString()};
        });
        bool buscado = false;
        Arranque arranque(Breves);
        arranque.buscarActualizacion = [&] { buscado = true; };
        QElapsedTimer reloj;
        reloj.start();
        const auto principal = arranque.iniciar();
        QVERIFY(reloj.elapsed() >= Breves.normal.count() && principal && principal->isVisible());
        QVERIFY(principal->isMaximized()); // the screen is too narrow, and high enough
        QVERIFY(!ventanaVisible(u"frmInicio"_s));
        QCOMPARE(visto,
                 QStringList({u"Bertsioa/Versión 1.2.3"_s, u"Ostrel de Seguros"_s, QString()}));
        QVERIFY(!buscado);
    }

    void conActualizacionEsperaMasYAvisa()
    {
        QCOMPARE(EsperasInicio().normal, 3000ms);
        QCOMPARE(EsperasInicio().conBusqueda, 4000ms);
        servicioDatos()->GuardarActOnline(1);
        bool visibleMientras = false;
        Arranque arranque(Breves);
        arranque.buscarActualizacion = [&] {
            auto *lblAct = Manos(*ventanaVisible(u"frmInicio"_s)).control("lblAct");
            visibleMientras = lblAct->isVisible();
            QTimer::singleShot(0, lblAct, [&, lblAct] { visibleMientras &= lblAct->isHidden(); });
        };
        QElapsedTimer reloj;
        reloj.start();
        QVERIFY(arranque.iniciar() && visibleMientras);
        QVERIFY(reloj.elapsed() >= Breves.conBusqueda.count());
    }

    void primerInicioPideIdioma()
    {
        m_entorno.emplace(QString());
        QString antesDelInicio;
        cuandoEste(u"FrmIdioma"_s, [&](QWidget &eleccion) {
            antesDelInicio = ventanaVisible(u"frmInicio"_s) ? u"tarde"_s : u"antes"_s;
            QCOMPARE(eleccion.windowTitle(), u"Hautatu Hizkuntza/Selección de idioma"_s);
            const Manos manos(eleccion);
            QCOMPARE(manos.foco(), u"cmdeuskera"_s);
            for (const char *siguiente : {"chkActOnline", "cmdcastellano", "cmdeuskera"}) {
                manos.tecla(Qt::Key_Return);
                QCOMPARE(manos.foco(), QString::fromLatin1(siguiente));
            }
            for (const qint16 activa : {qint16(1), qint16(0)}) {
                manos.pulsar("chkActOnline");
                QCOMPARE(servicioDatos()->ObtenerActOnline(), activa);
            }
            manos.pulsar("cmdeuskera");
        });
        const auto principal = Arranque(Breves).iniciar();
        QVERIFY(principal);
        QCOMPARE(antesDelInicio, u"antes"_s);
        QCOMPARE(servicioDatos()->ObtenerIdioma(), u"E"_s);
        QCOMPARE(principal->windowTitle(), u"Aseguruen Ostrel"_s);
        // left without a choice, nothing is stored
        m_entorno.emplace(QString());
        cuandoEste(u"FrmIdioma"_s,
                   [](QWidget &eleccion) { QTest::keyClick(&eleccion, Qt::Key_Escape); });
        QCOMPARE(Arranque(Breves).iniciar()->windowTitle(), u"Ostrel de seguros"_s);
        QCOMPARE(servicioDatos()->ObtenerIdioma(), QString());
    }

    void baseDanadaSeCuentaYElProgramaSigue()
    {
        const QByteArray basura("this is no database");
        fijarRutas(Rutas::desde(m_entorno->ruta(u"otra"_s)));
        QVERIFY(QDir().mkpath(rutas().tablas));
        lineas::escribir(rutas().datos, basura);
        m_mensajes->responder(QMessageBox::Ok);
        QVERIFY(Arranque(Breves).iniciar());
        const QString texto = m_mensajes->texto();
        QVERIFY2(texto.contains(u"OstrMod.mdb") && texto.contains(u"restaurar una copia"),
                 qPrintable(texto));
        QCOMPARE(lineas::leer(rutas().datos), basura);
    }
};

QTEST_MAIN(TstInicio)
#include "tst_inicio.moc"
