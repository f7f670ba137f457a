#include "app/Arranque.h"
#include "app/MDIOstrel.h"
#include "core/CEntrada.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "server/Servidor.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QPointer>

#include <optional>

using namespace Qt::StringLiterals;

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

    static QWidget *ventana(const QString &nombre)
    {
        for (auto *una : QApplication::topLevelWidgets()) {
            if (una->objectName() == nombre && una->isVisible())
                return una;
        }
        return nullptr;
    }
    /// Does something with a window as soon as it is there, while the start-up runs.
    static void cuandoEste(const QString &nombre, const std::function<void(QWidget &)> &accion)
    {
        auto *reloj = new QTimer(qApp);
        reloj->setInterval(1);
        connect(reloj, &QTimer::timeout, qApp, [=] {
            if (auto *hallada = ventana(nombre)) {
                reloj->deleteLater();
                reloj->stop();
                accion(*hallada);
            }
        });
        reloj->start();
    }
    static QString idiomaGuardado() { return servicioDatos()->ObtenerIdioma(); }

private Q_SLOTS:
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

    void esperasDelPrograma()
    {
        QCOMPARE(EsperasInicio().normal, 3000ms);
        QCOMPARE(EsperasInicio().conBusqueda, 4000ms);
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
        QString version;
        QString titulo;
        bool lblActVisible = true;
        cuandoEste(u"frmInicio"_s, [&](QWidget &inicio) {
            version = inicio.findChild<QLabel *>(u"lblVersion"_s)->text();
            titulo = inicio.findChild<QLabel *>(u"lblTitulo"_s)->text();
            lblActVisible = inicio.findChild<QLabel *>(u"lblAct"_s)->isVisible();
        });
        bool buscado = false;
        Arranque arranque(Breves);
        arranque.buscarActualizacion = [&] { buscado = true; };
        QElapsedTimer reloj;
        reloj.start();
        const auto principal = arranque.iniciar();
        QVERIFY(reloj.elapsed() >= Breves.normal.count());
        QVERIFY(principal);
        QVERIFY(principal->isVisible());
        QVERIFY(!ventana(u"frmInicio"_s));
        QCOMPARE(version, u"Bertsioa/Versión "_s + QCoreApplication::applicationVersion());
        QCOMPARE(version.count(u'.'), 2);
        QCOMPARE(titulo, u"Ostrel de Seguros"_s);
        QVERIFY(!lblActVisible);
        QVERIFY(!buscado);
    }

    void conActualizacionEsperaMasYAvisa()
    {
        servicioDatos()->GuardarActOnline(1);
        bool visibleMientras = false;
        QPointer<QLabel> lblAct;
        Arranque arranque(Breves);
        arranque.buscarActualizacion = [&] {
            lblAct = ventana(u"frmInicio"_s)->findChild<QLabel *>(u"lblAct"_s);
            visibleMientras = lblAct->isVisible();
            QTimer::singleShot(0, lblAct, [&] { visibleMientras &= lblAct->isHidden(); });
        };
        QElapsedTimer reloj;
        reloj.start();
        const auto principal = arranque.iniciar();
        QVERIFY(principal);
        QVERIFY(visibleMientras);
        QVERIFY(reloj.elapsed() >= Breves.conBusqueda.count());
    }

    void primerInicioPideIdioma()
    {
        m_entorno.emplace(QString());
        QString antesDelInicio;
        cuandoEste(u"FrmIdioma"_s, [&](QWidget &eleccion) {
            antesDelInicio = ventana(u"frmInicio"_s) ? u"tarde"_s : u"antes"_s;
            QCOMPARE(eleccion.windowTitle(), u"Hautatu Hizkuntza/Selección de idioma"_s);
            const Manos manos(eleccion);
            QCOMPARE(manos.foco(), u"cmdeuskera"_s);
            manos.tecla(Qt::Key_Tab);
            QCOMPARE(manos.foco(), u"chkActOnline"_s);
            manos.tecla(Qt::Key_Return);
            QCOMPARE(manos.foco(), u"cmdcastellano"_s);
            manos.pulsar("chkActOnline");
            QCOMPARE(servicioDatos()->ObtenerActOnline(), qint16(1));
            manos.pulsar("chkActOnline");
            QCOMPARE(servicioDatos()->ObtenerActOnline(), qint16(0));
            manos.pulsar("cmdeuskera");
        });
        const auto principal = Arranque(Breves).iniciar();
        QVERIFY(principal);
        QCOMPARE(antesDelInicio, u"antes"_s);
        QCOMPARE(idiomaGuardado(), u"E"_s);
        QCOMPARE(principal->windowTitle(), u"Aseguruen Ostrel"_s);
    }

    void idiomaAbandonadoQuedaSinGuardar()
    {
        m_entorno.emplace(QString());
        cuandoEste(u"FrmIdioma"_s,
                   [&](QWidget &eleccion) { QTest::keyClick(&eleccion, Qt::Key_Escape); });
        const auto principal = Arranque(Breves).iniciar();
        QVERIFY(principal);
        QCOMPARE(idiomaGuardado(), QString());
        QCOMPARE(principal->windowTitle(), u"Ostrel de seguros"_s);
    }

    void baseDanadaSeCuentaYElProgramaSigue()
    {
        const QByteArray basura("this is no database");
        fijarRutas(Rutas::desde(m_entorno->ruta(u"otra"_s)));
        QVERIFY(QDir().mkpath(rutas().tablas));
        QFile danada(rutas().datos);
        QVERIFY(danada.open(QIODevice::WriteOnly));
        QCOMPARE(danada.write(basura), qint64(basura.size()));
        danada.close();

        m_mensajes->responder(QMessageBox::Ok);
        const auto principal = Arranque(Breves).iniciar();
        QVERIFY(principal);
        const QString texto = m_mensajes->texto();
        QVERIFY2(texto.contains(u"OstrMod.mdb"), qPrintable(texto));
        QVERIFY2(texto.contains(u"restaurar una copia"), qPrintable(texto));
        QVERIFY(danada.open(QIODevice::ReadOnly));
        QCOMPARE(danada.readAll(), basura);
    }
};

QTEST_MAIN(TstInicio)
#include "tst_inicio.moc"
