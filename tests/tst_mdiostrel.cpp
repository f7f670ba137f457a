#include "app/MDIOstrel.h"
#include "app/TextosQt.h"
#include "core/CEntrada.h"
#include "core/Textos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/GeneralAveriado.h"
#include "support/Manos.h"
#include "widgets/Iconos.h"
#include "widgets/PantallaBase.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QToolButton>

#include <optional>

using namespace Qt::StringLiterals;

/// The main window, driven with keys and clicks.
class PruebaMDIOstrel : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;
    std::unique_ptr<MDIOstrel> m_ventana;

    void abrirPrograma()
    {
        m_ventana = std::make_unique<MDIOstrel>();
        m_ventana->resize(1180, 800);
        m_ventana->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_ventana.get()));
        m_ventana->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana.get()));
    }
    QAction *accion(const char *nombre) const
    {
        auto *hallada = m_ventana->findChild<QAction *>(QString::fromLatin1(nombre));
        if (!hallada)
            QTest::qFail(nombre, __FILE__, __LINE__);
        return hallada;
    }
    QMenu *menu(const char *nombre) const
    {
        return m_ventana->findChild<QMenu *>(QString::fromLatin1(nombre));
    }
    /// Opens a menu with the mouse.
    QMenu *desplegar(const char *nombre) const
    {
        auto *barra = m_ventana->menuBar();
        auto *elegido = menu(nombre);
        QTest::mouseClick(barra, Qt::LeftButton, {},
                          barra->actionGeometry(elegido->menuAction()).center());
        return elegido;
    }
    /// Opens a menu and clicks one of its entries.
    void elegir(const char *nombreMenu, const char *entrada) const
    {
        auto *abierto = desplegar(nombreMenu);
        QVERIFY(abierto->isVisible());
        QTest::mouseClick(abierto, Qt::LeftButton, {},
                          abierto->actionGeometry(accion(entrada)).center());
        QCoreApplication::processEvents();
    }
    void pulsarBarra(const char *nombre) const
    {
        Manos(*m_ventana).pulsar(nombre);
        QCoreApplication::processEvents();
    }
    /// Screens open inside the window, by name.
    QStringList pantallas() const
    {
        QStringList nombres;
        for (const auto *pantalla : m_ventana->findChildren<PantallaBase *>()) {
            if (pantalla->isVisible())
                nombres.append(pantalla->objectName());
        }
        nombres.sort();
        return nombres;
    }
    PantallaBase *pantalla(const char *nombre) const
    {
        return m_ventana->findChild<PantallaBase *>(QString::fromLatin1(nombre));
    }
    /// Closes a screen by its frame.
    void cerrarMarco(const char *nombre) const
    {
        QPointer<QWidget> marco = pantalla(nombre)->parentWidget();
        QTest::keyClick(marco, Qt::Key_F4, Qt::ControlModifier);
        QTRY_VERIFY(!marco);
    }
    QList<bool> habilitadas(const QList<const char *> &nombres) const
    {
        QList<bool> estados;
        for (const char *nombre : nombres)
            estados.append(accion(nombre)->isEnabled());
        return estados;
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        abrirPrograma();
    }
    void cleanup()
    {
        m_ventana.reset();
        m_entorno.reset();
    }

    void textosEnLosDosIdiomas()
    {
        QCOMPARE(m_ventana->windowTitle(), u"Ostrel de seguros"_s);
        QCOMPARE(menu("mnuDeclarante")->title(), u"&Declarante"_s);
        QCOMPARE(accion("mnuEliminarDeclarante")->text(), u"&Eliminar declarante"_s);
        QCOMPARE(accion("abrdec")->text(), u"Abrir declarante"_s);
        unico::la<CEntrada>().IDI(u"E"_s);
        m_ventana->CambiarIdioma();
        QCOMPARE(m_ventana->windowTitle(), u"Aseguruen Ostrel"_s);
        QCOMPARE(menu("mnuUtilidades")->title(), u"A&ukerak"_s);
        QCOMPARE(menu("mnuAyuda")->title(), u"&Laguntza"_s);
        QCOMPARE(accion("mnuSalir")->text(), u"I&rten"_s);
        QCOMPARE(accion("mnuBackup")->text(), u"Segurtasun kopia sortu"_s);
        QCOMPARE(accion("salir")->text(), u"Irten aplikaziotik"_s);
        QCOMPARE(accion("salir")->toolTip(), u"Irten aplikaziotik"_s);
    }

    void iconosDibujadosYApagados()
    {
        for (int i = 0; i <= static_cast<int>(Icono::Informacion); ++i) {
            const auto cual = static_cast<Icono>(i);
            const QPixmap doble = icono(cual).pixmap(QSize(32, 32), 2.0);
            QCOMPARE(doble.size(), QSize(64, 64));
            const QImage vivo = icono(cual).pixmap(16).toImage();
            QImage nada(vivo.size(), vivo.format());
            nada.fill(Qt::transparent);
            QVERIFY2(vivo != nada, qPrintable(QString::number(i)));
            const QImage apagado = icono(cual).pixmap(16, QIcon::Disabled).toImage();
            QCOMPARE(apagado == vivo, cual == Icono::Programa);
        }
    }

    void clavesDeAccesoSinChoques_data()
    {
        QTest::addColumn<QString>("idioma");
        QTest::newRow("castellano") << u"C"_s;
        QTest::newRow("euskera") << u"E"_s;
    }
    void clavesDeAccesoSinChoques()
    {
        QFETCH(QString, idioma);
        unico::la<CEntrada>().IDI(idioma);
        m_ventana->CambiarIdioma();
        const auto revisar = [](const QList<QAction *> &acciones) {
            QStringList claves;
            for (const auto *una : acciones) {
                const auto clave = QKeySequence::mnemonic(una->text()).toString();
                if (una->isVisible() && !clave.isEmpty())
                    claves.append(clave);
            }
            QVERIFY(!claves.isEmpty());
            QCOMPARE(QSet<QString>(claves.cbegin(), claves.cend()).size(), claves.size());
        };
        revisar(m_ventana->menuBar()->actions());
        for (const char *nombre : {"mnuDeclarante", "mnuUtilidades", "mnuAyuda"})
            revisar(menu(nombre)->actions());
    }

    void menusEnSuOrden()
    {
        QStringList nombres;
        for (const auto *una : menu("mnuDeclarante")->actions()) {
            if (!una->isSeparator())
                nombres.append(una->objectName());
        }
        QCOMPARE(
            nombres.join(u' '),
            u"mnuNuevoDeclarante mnuAbrirDeclarante mnuEliminarDeclarante mnuSalir d1 d2 d3 d4"_s);
    }

    void sinDeclarantesNoSeAbreNiElimina()
    {
        desplegar("mnuDeclarante");
        QCOMPARE(habilitadas({"mnuNuevoDeclarante", "mnuAbrirDeclarante", "mnuEliminarDeclarante",
                              "nuedec", "abrdec", "elidec"}),
                 QList<bool>({true, false, false, true, false, false}));
        QCOMPARE(accion("mnuAbrirDeclarante")->toolTip(), u"No hay ningún declarante guardado."_s);
        QCOMPARE(accion("abrdec")->toolTip(), u"No hay ningún declarante guardado."_s);
    }

    void alAbrirElMenuSeLeeElNumeroDeDeclarantes()
    {
        Entorno::altaDeclarante();
        QVERIFY(!accion("mnuAbrirDeclarante")->isEnabled());
        desplegar("mnuDeclarante");
        QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 1);
        QCOMPARE(habilitadas({"mnuAbrirDeclarante", "mnuEliminarDeclarante", "abrdec", "elidec"}),
                 QList<bool>(4, true));
    }

    void baseIlegibleDeshabilitaYDiceElMotivo()
    {
        Entorno::altaDeclarante();
        const GeneralAveriado averia;
        const ConductorMensajes ninguno;
        desplegar("mnuDeclarante");
        QVERIFY(!accion("mnuAbrirDeclarante")->isEnabled());
        QVERIFY(accion("mnuAbrirDeclarante")->toolTip().contains(u"OstrMod.mdb"));
    }

    void entradasVenideras()
    {
        for (const char *nombre :
             {"mnuExport", "mnuImport", "mnuBackup", "mnuRestore", "mnuPreferencias",
              "mnuAsistenciaOnline", "mnuDescripAsisOnline"}) {
            QVERIFY2(!accion(nombre)->isEnabled(), nombre);
            QVERIFY2(accion(nombre)->statusTip().contains(u"próxima entrega"), nombre);
            QVERIFY2(accion(nombre)->toolTip().contains(u"próxima entrega"), nombre);
        }
    }

    void nuevoDeclaranteConAtajoYUnaSolaVez()
    {
        QTest::keyClick(m_ventana.get(), Qt::Key_N, Qt::ControlModifier);
        QTRY_COMPARE(pantallas(), QStringList(u"frmDecDatos"_s));
        // the screen owns its record from now on
        QCOMPARE(habilitadas({"mnuNuevoDeclarante", "nuedec"}), QList<bool>({false, false}));
        QCOMPARE(accion("nuedec")->toolTip(), msj(Msj::DeshabilitadoEnEdicion));
        QTest::keyClick(m_ventana.get(), Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(pantallas(), QStringList(u"frmDecDatos"_s));
        cerrarMarco("frmDecDatos");
        QCOMPARE(pantallas(), QStringList());
        QTRY_VERIFY(accion("mnuNuevoDeclarante")->isEnabled());
    }

    void listaEnSusDosModos()
    {
        Entorno::altaDeclarante();
        elegir("mnuDeclarante", "mnuAbrirDeclarante");
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecLista"_s));
        QCOMPARE(unico::la<cDecLista>().MODO(), u"C"_s);
        const QPointer<PantallaBase> abierta = pantalla("FrmDecLista");
        pulsarBarra("abrdec");
        QCOMPARE(pantalla("FrmDecLista"), abierta.data());
        pulsarBarra("elidec");
        QTRY_VERIFY(!abierta);
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecLista"_s));
        QCOMPARE(unico::la<cDecLista>().MODO(), u"E"_s);
        QCOMPARE(pantalla("FrmDecLista")->windowTitle(), msj(Msj::TituloEliminarDeclarante));
    }

    void recientesTrasCadaCambio()
    {
        Entorno::altaDeclarante(u"12345678Z"_s, u"GOMEZ & HIJOS"_s);
        elegir("mnuDeclarante", "mnuAbrirDeclarante");
        QVERIFY(!accion("d1")->isVisible());
        Q_EMIT pantalla("FrmDecLista")->datosCambiados();
        QVERIFY(accion("d1")->isVisible());
        QCOMPARE(accion("d1")->text(), u"12345678Z - GOMEZ && HIJOS"_s);
        QVERIFY(!accion("d2")->isVisible());
    }

    void recienteAbreSuResumen()
    {
        Entorno::altaDeclarante(u"12345678Z"_s, u"SEGUROS UNO"_s);
        const auto dos = Entorno::altaDeclarante(u"A58818501"_s, u"SEGUROS DOS"_s);
        m_ventana.reset();
        abrirPrograma();
        QCOMPARE(accion("d1")->text(), u"A58818501 - SEGUROS DOS"_s);
        elegir("mnuDeclarante", "d1");
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecResumen"_s));
        QCOMPARE(unico::la<cDecResumen>().CSCO(), dos);
        QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"A"_s);
        elegir("mnuDeclarante", "d2");
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecResumen"_s));
        QCOMPARE(unico::la<cDecResumen>().DNI(), u"12345678Z"_s);
        QTRY_COMPARE(m_ventana->findChildren<PantallaBase *>().size(), 1);
        QVERIFY(pantalla("FrmDecResumen")->findChild<QLabel *>(u"lblnombre"_s)->text()
                == u"SEGUROS UNO");
    }

    void edicionDeshabilitaRecientes()
    {
        Entorno::altaDeclarante();
        m_ventana.reset();
        abrirPrograma();
        elegir("mnuDeclarante", "mnuNuevoDeclarante");
        QTRY_COMPARE(pantallas(), QStringList(u"frmDecDatos"_s));
        QCOMPARE(habilitadas({"d1", "mnuAbrirDeclarante", "elidec", "mnuSalir"}),
                 QList<bool>({false, false, false, true}));
        QCOMPARE(accion("d1")->statusTip(), msj(Msj::DeshabilitadoEnEdicion));
        QCOMPARE(accion("mnuImport")->toolTip(), msj(Msj::ProximaVersion));
    }

    void cambioDeIdiomaLlegaALasPantallas()
    {
        TextosQt textosQt;
        QApplication::installTranslator(&textosQt);
        Entorno::altaDeclarante();
        elegir("mnuDeclarante", "mnuAbrirDeclarante");
        unico::la<CEntrada>().IDI(u"E"_s);
        m_ventana->CambiarIdioma();
        QCOMPARE(pantalla("FrmDecLista")->windowTitle(), u"Ireki aitortzailea"_s);
        auto *marco = qobject_cast<QMdiSubWindow *>(pantalla("FrmDecLista")->parentWidget());
        QVERIFY(marco);
        QStringList textos;
        for (const auto *una : marco->systemMenu()->actions()) {
            if (!una->isSeparator())
                textos.append(una->text());
        }
        QCOMPARE(textos.size(), 7);
        QCOMPARE(textos.constFirst(), u"&Leheneratu"_s);
        QCOMPARE(textos.constLast(), u"&Itxi"_s);
    }

    void acercaDe()
    {
        elegir("mnuAyuda", "mnuacerca");
        auto *acerca = m_ventana->findChild<QWidget *>(u"frmAbout"_s);
        QVERIFY(acerca && acerca->isVisible());
        const QPointer<QWidget> testigo = acerca;
        QVERIFY(Manos(*acerca).texto("lblVersion").startsWith(u"Versión 1."));
        QCOMPARE(Manos(*acerca).texto("lblTitulo"), u"Ostrel de Seguros"_s);
        Manos(*acerca).tecla(Qt::Key_Return);
        QTRY_VERIFY(!testigo);
    }

    void lineaDeEstadoDelMenu()
    {
        auto *abierto = desplegar("mnuDeclarante");
        QTest::mouseMove(abierto, abierto->actionGeometry(accion("mnuNuevoDeclarante")).center());
        QTest::keyClick(abierto, Qt::Key_Home);
        QTRY_COMPARE(m_ventana->statusBar()->currentMessage(), msj(Msj::PistaMenuNuevoDeclarante));
    }

    void cerrarNoVuelveAMostrarNinguna()
    {
        Entorno::altaDeclarante();
        m_ventana.reset();
        abrirPrograma();
        elegir("mnuDeclarante", "d1");
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecResumen"_s));
        // the declarant's data ask for the summary when they close
        Manos(*pantalla("FrmDecResumen")).pulsar("cmdDeclarante");
        QTRY_VERIFY(pantallas().contains(u"frmDecDatos"_s));
        const QSignalSpy pide(pantalla("frmDecDatos"), &PantallaBase::mostrar);
        elegir("mnuDeclarante", "mnuSalir");
        QTRY_VERIFY(!m_ventana->isVisible());
        QCOMPARE(pide.size(), 1);
        QTRY_COMPARE(m_ventana->findChildren<PantallaBase *>().size(), 0);
    }

    void atajoDeSalirYBotonDeSalir()
    {
        QTest::keyClick(m_ventana.get(), Qt::Key_Q, Qt::ControlModifier);
        QTRY_VERIFY(!m_ventana->isVisible());
        abrirPrograma();
        pulsarBarra("salir");
        QTRY_VERIFY(!m_ventana->isVisible());
    }

    void losMarcosCabenEnLaVentana()
    {
        Entorno::altaDeclarante();
        elegir("mnuDeclarante", "mnuNuevoDeclarante");
        QTRY_COMPARE(pantallas(), QStringList(u"frmDecDatos"_s));
        const auto *area = m_ventana->findChild<QMdiArea *>();
        const auto *dentro = pantalla("frmDecDatos");
        QVERIFY(area->viewport()->rect().contains(dentro->parentWidget()->geometry()));
        QVERIFY(dentro->width() >= dentro->minimumSizeHint().width());
        QVERIFY(dentro->height() >= dentro->minimumSizeHint().height());
    }
};

QTEST_MAIN(PruebaMDIOstrel)
#include "tst_mdiostrel.moc"
