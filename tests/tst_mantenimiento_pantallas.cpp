#include "app/Arranque.h"
#include "app/MDIOstrel.h"
#include "maintenance/FrmIdioma.h"
#include "maintenance/cActOnline.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "support/ServidorVersion.h"
#include "widgets/PantallaBase.h"

#include <QPointer>

using namespace std::chrono_literals;

/// Preferences, choice of language and what a stored switch makes the program do.
class TstMantenimientoPantallas : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;

    static qint16 guardado() { return servicioDatos()->ObtenerActOnline(); }
    static PantallaBase *pantalla(const QString &nombre)
    {
        for (auto *una : QApplication::topLevelWidgets()) {
            if (una->objectName() == nombre && una->isVisible())
                return qobject_cast<PantallaBase *>(una);
        }
        return nullptr;
    }
    /// Presses a button of a screen as soon as it is there; how often it was there.
    struct AlAparecer
    {
        AlAparecer(const QString &nombre, const char *boton,
                   const std::function<void(PantallaBase &)> &antes = {})
        {
            QObject::connect(&reloj, &QTimer::timeout, &reloj, [=, this] {
                if (auto *hallada = pantalla(nombre)) {
                    ++veces;
                    if (antes)
                        antes(*hallada);
                    Manos(*hallada).pulsar(boton);
                }
            });
            reloj.start(1);
        }
        int veces = 0;
        QTimer reloj;
    };
    static cActOnline &sinEsperas(qint16 interruptor)
    {
        auto &estado = unico::la<cActOnline>();
        estado.espera = 0ms;
        estado.limite = 5s;
        estado.ActOnline(interruptor);
        return estado;
    }
    static std::unique_ptr<MDIOstrel> abrirPrograma()
    {
        auto principal = std::make_unique<MDIOstrel>();
        principal->show();
        return principal;
    }
    /// The preferences, opened from the menu.
    static PantallaBase *preferencias(MDIOstrel &principal)
    {
        principal.findChild<QAction *>(u"mnuPreferencias"_s)->trigger();
        return pantalla(u"frmPreferencias"_s);
    }

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setApplicationVersion(u"1.2.3"_s); }
    void init() { m_entorno.emplace(); }
    void cleanup()
    {
        m_entorno.reset();
        fijarIdioma(Idioma::Castellano);
    }

    void preferenciasGuardanYTraducen()
    {
        servicioDatos()->GuardarActOnline(1);
        unico::la<cActOnline>().LeerActOnline();
        Entorno::altaDeclarante();
        const auto principal = abrirPrograma();
        principal->findChild<QAction *>(u"mnuAbrirDeclarante"_s)->trigger();
        for (const char *salida : {"cmdCancelar", "cmdAceptar"}) {
            QPointer abierta = preferencias(*principal);
            QVERIFY(abierta && abierta->isModal());
            const Manos manos(*abierta);
            const QString textos
                = manos.textos("lblIdioma lblActualizaciones chkActOnline lblActAhora")
                      .remove(u'&');
            QCOMPARE(abierta->windowTitle(), u"Preferencias"_s);
            QCOMPARE(textos,
                     u"Idioma|Actualizaciones|Activar actualizaciones al iniciar "
                     "programa|Buscando actualización"_s);
            for (const char *nombre : {"optCast", "chkActOnline"})
                QVERIFY(manos.control<QAbstractButton>(nombre)->isChecked());
            manos.pulsar("chkActOnline");
            manos.pulsar("optEusk");
            QCOMPARE(guardado(), 1); // not yet, nor ever when it is cancelled
            QCOMPARE(unico::la<cActOnline>().ActOnline(), 1);
            QCOMPARE(unico::la<CEntrada>().IDI(), u"C"_s);
            QCOMPARE(principal->windowTitle(), u"Ostrel de seguros - [Abrir Declarante]"_s);
            manos.pulsar(salida);
            QTRY_VERIFY(!abierta);
        }
        QCOMPARE(guardado(), 0);
        QCOMPARE(servicioDatos()->ObtenerIdioma(), u"E"_s);
        QVERIFY(principal->windowTitle().startsWith(u"Aseguruen Ostrel"));
        QCOMPARE(principal->findChild<PantallaBase *>(u"FrmDecLista"_s)->windowTitle(),
                 u"Ireki aitortzailea"_s);
    }

    void buscarAhoraConLaMismaVersion()
    {
        ServidorVersion servidor("[informacion]\ncurrentversion=1.2.3\n"
                                 "downloadurl=https://v.example/\ndescripcion=");
        const auto principal = abrirPrograma();
        sinEsperas(-1).URLAct(servidor.direccion());
        QPointer abierta = preferencias(*principal);
        QVERIFY(!Manos(*abierta).control<QAbstractButton>("chkActOnline")->isChecked());
        bool puede = true;
        bool ocupado = true;
        const AlAparecer version(u"FrmVersionCheck"_s, "CmdContinuar", [&](PantallaBase &vista) {
            puede = vista.findChild<QWidget *>(u"CmdActualizar"_s)->isEnabled();
            ocupado = QApplication::overrideCursor();
        });
        Manos(*abierta).pulsar("lblActAhora");
        QCOMPARE(version.veces, 1);
        QVERIFY(!puede && !ocupado && abierta && abierta->isVisible());
    }

    void sinConexionSoloCambiaLaSesion()
    {
        servicioDatos()->GuardarActOnline(1);
        const auto principal = abrirPrograma();
        auto &estado = sinEsperas(1);
        QPointer abierta = preferencias(*principal);
        bool marcada = true;
        const AlAparecer sinConexion(u"FrmSinConexion"_s, "CmdContinuar", [&](PantallaBase &vista) {
            const Manos manos(vista);
            marcada = manos.control<QAbstractButton>("ChkNoPreg")->isChecked();
            manos.pulsar("ChkNoPreg");
            QCOMPARE(estado.ActOnline(), 0);
        });
        Manos(*abierta).pulsar("lblActAhora");
        QCOMPARE(sinConexion.veces, 1);
        QVERIFY(!marcada);
        QCOMPARE(guardado(), 1); // saved by nobody here
        QVERIFY(!Manos(*abierta).control<QAbstractButton>("chkActOnline")->isChecked());
        Manos(*abierta).pulsar("cmdAceptar");
        QCOMPARE(guardado(), 0);
    }

    void seBuscaSoloConMenosUno()
    {
        for (const qint16 interruptor : QList<qint16>{1, 0, -1}) {
            const int busquedas = interruptor == -1;
            auto &estado = sinEsperas(interruptor);
            estado.SitAct(0);
            FrmIdioma eleccion;
            eleccion.hacerModal();
            eleccion.show();
            const Manos manos(eleccion);
            bool marcable = true;
            QCOMPARE(manos.control<QAbstractButton>("chkActOnline")->isChecked(), interruptor == 1);
            const AlAparecer sinConexion(u"FrmSinConexion"_s, "CmdContinuar", [&](PantallaBase &) {
                marcable = eleccion.findChild<QWidget *>(u"chkActOnline"_s)->isEnabled();
            });
            manos.pulsar("cmdeuskera");
            QVERIFY(eleccion.isHidden());
            QCOMPARE(sinConexion.veces, busquedas);
            QCOMPARE(int(estado.SitAct()), busquedas);
            QCOMPARE(marcable, busquedas == 0);
            // and so does the window when it opens
            sinEsperas(interruptor);
            const auto principal = abrirPrograma();
            QTest::qWait(busquedas ? 60 : 10);
            QCOMPARE(sinConexion.veces, 2 * busquedas);
        }
    }

    void alIniciarSeLeenDireccionEInterruptor()
    {
        servicioDatos()->GuardarActOnline(1);
        QVERIFY(prepararSesion().fallos.isEmpty());
        const auto &estado = unico::la<cActOnline>();
        QCOMPARE(estado.ActOnline(), 1);
        QCOMPARE(estado.URLAct(), u"https://www.varlenda.example/ostrel/version"_s);
    }
};

QTEST_MAIN(TstMantenimientoPantallas)
#include "tst_mantenimiento_pantallas.moc"
