#include "app/DialogosVentana.h"
#include "app/Estilo.h"
#include "app/MDIOstrel.h"
#include "declarants/cDecLista.h"
#include "server/Servidor.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "widgets/Navegador.h"
#include "widgets/PantallaBase.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStatusBar>

/// The main window, driven with keys and clicks.
class TstMdiOstrel : public QObject
{
    Q_OBJECT

private:
    std::optional<Entorno> m_entorno;
    std::optional<ConductorMensajes> m_mensajes;
    std::unique_ptr<MDIOstrel> m_ventana;

    void abrirPrograma()
    {
        QCoreApplication::setApplicationVersion(u"1.2.3"_s);
        m_ventana.reset();
        m_ventana = std::make_unique<MDIOstrel>();
        m_ventana->resize(1180, 800);
        m_ventana->show();
        m_ventana->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana.get()));
    }
    void enEuskera()
    {
        unico::la<CEntrada>().IDI(u"E"_s);
        m_ventana->CambiarIdioma();
    }
    QAction *accion(const char *n) const { return Manos(*m_ventana).control<QAction>(n); }
    QMenu *menu(const char *n) const { return Manos(*m_ventana).control<QMenu>(n); }
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
    QWidget *marco(const char *nombre) const { return pantalla(nombre)->parentWidget(); }
    /// 1 for each action that can be chosen, 0 for each that cannot.
    QString habilitadas(const QList<const char *> &nombres) const
    {
        QString estados;
        for (const char *nombre : nombres)
            estados += accion(nombre)->isEnabled() ? u'1' : u'0';
        return estados;
    }
    /// A new declarant, with what is only typed in the box that has the focus.
    Manos nuevoCon(const char *caja, const QString &texto) const
    {
        pulsarBarra("nuedec");
        const Manos manos(*m_ventana->findChild<PantallaBase *>(u"frmDecDatos"_s));
        manos.escribir(caja, texto);
        return manos;
    }

private Q_SLOTS:
    void init()
    {
        m_entorno.emplace();
        m_mensajes.emplace();
        abrirPrograma();
    }
    void cleanup()
    {
        m_ventana.reset();
        m_mensajes.reset();
        m_entorno.reset();
    }

    void cadaPantallaEnLosDosIdiomas()
    {
        static constexpr const char *entradas[][2] = {{"mnuDeclarante", "mnuAbrirDeclarante"},
                                                      {"mnuDeclarante", "mnuEliminarDeclarante"},
                                                      {"mnuDeclarante", "d1"},
                                                      {"mnuUtilidades", "mnuPendientes"},
                                                      {"mnuUtilidades", "mnuExport"},
                                                      {"mnuUtilidades", "mnuImportarDeclaraciones"},
                                                      {"mnuUtilidades", "mnuImport"},
                                                      {"mnuDeclarante", "mnuNuevoDeclarante"}};
        Entorno::altaDeclarante();
        abrirPrograma();
        m_ventana->resize(1024, 700);
        for (const auto &idioma : {u"C"_s, u"E"_s}) {
            unico::la<CEntrada>().IDI(idioma);
            m_ventana->CambiarIdioma();
            for (const auto &[nombreMenu, entrada] : entradas) {
                elegir(nombreMenu, entrada);
                QCOMPARE(pantallas().size(), 1);
                auto *abierta = m_ventana->findChild<QMdiArea *>()->activeSubWindow()->widget();
                const QString nombre = abierta->objectName();
                QCOMPARE(nombre + Manos(*abierta).defectos().join(u' '), nombre);
                QVERIFY2(abierta->focusWidget()->isVisible(), qPrintable(nombre));
                QTest::keyClick(abierta, Qt::Key_Escape);
                QTRY_COMPARE(pantallas(), QStringList());
            }
            for (const char *boton : {"nuedec", "pendec", "salir"})
                QVERIFY(Manos(*m_ventana).control(boton)->isVisible());
        }
    }

    void elMenuDiceSuPistaYLeeLaBase()
    {
        auto *abierto = desplegar("mnuDeclarante");
        QTest::mouseMove(abierto, abierto->actionGeometry(accion("mnuNuevoDeclarante")).center());
        QTest::keyClick(abierto, Qt::Key_Home);
        QTRY_COMPARE(m_ventana->statusBar()->currentMessage(), msj(Msj::PistaMenuNuevoDeclarante));
        abierto->close();
        const auto leidas = [this] {
            desplegar("mnuDeclarante")->close();
            return habilitadas({"mnuNuevoDeclarante", "mnuAbrirDeclarante", "mnuEliminarDeclarante",
                                "nuedec", "abrdec", "elidec"});
        };
        QCOMPARE(leidas(), u"100100"_s);
        for (const char *nombre : {"mnuAbrirDeclarante", "abrdec"})
            QCOMPARE(accion(nombre)->toolTip(), u"No hay ningún declarante guardado."_s);
        Entorno::altaDeclarante();
        QCOMPARE(leidas(), u"111111"_s);
        const ModeloPerdido perdido;
        QCOMPARE(leidas(), u"100100"_s);
        QVERIFY(accion("mnuAbrirDeclarante")->toolTip().contains(u"OstrMod.mdb"));
    }

    /// Settings that were in use at the start are read as soon as they can be.
    void ajustesLeidosMasTarde()
    {
        m_ventana.reset();
        unico::la<CEntrada>().IDI(u"E"_s);
        unico::reiniciar();
        {
            const ModeloPerdido perdido;
            InicioSesion lectura;
            leerSesion(lectura);
            QVERIFY(!lectura.ajustesLeidos);
            abrirPrograma();
            QCOMPARE(m_ventana->windowTitle(), u"Ostrel de seguros"_s);
        }
        desplegar("mnuDeclarante");
        QTRY_COMPARE(m_ventana->windowTitle(), u"Aseguruen Ostrel"_s);
    }

    void nuevoDeclaranteConAtajoYUnaSolaVez()
    {
        Entorno::altaDeclarante();
        abrirPrograma();
        for (int vez = 0; vez < 2; ++vez) {
            QTest::keyClick(m_ventana.get(), Qt::Key_N, Qt::ControlModifier);
            QTRY_COMPARE(pantallas(), QStringList(u"frmDecDatos"_s));
        }
        QCOMPARE(unico::la<cDecDatos>().MODO(), u"A"_s);
        // the screen owns its record from now on
        QCOMPARE(habilitadas({"mnuNuevoDeclarante", "nuedec", "d1", "mnuAbrirDeclarante", "elidec",
                              "mnuSalir"}),
                 u"000001"_s);
        for (const QString &dicho : {accion("nuedec")->toolTip(), accion("d1")->statusTip(),
                                     accion("mnuImport")->toolTip()})
            QCOMPARE(dicho, msj(Msj::DeshabilitadoEnEdicion));
        QTest::keyClick(marco("frmDecDatos"), Qt::Key_F4, Qt::ControlModifier);
        QTRY_COMPARE(pantallas(), QStringList());
        QTRY_VERIFY(accion("mnuNuevoDeclarante")->isEnabled());
    }

    void elFocoVuelveTrasUnMenuPorTeclado()
    {
        pulsarBarra("nuedec");
        const auto *dni = Manos(*m_ventana).control("txtdni");
        QTRY_VERIFY(dni->hasFocus());
        m_ventana->menuBar()->setFocus(Qt::MenuBarFocusReason);
        accion("mnuPreferencias")->trigger();
        auto *modal = ventanaVisible(u"frmPreferencias"_s);
        QVERIFY(QTest::qWaitForWindowActive(modal));
        QTest::keyClick(modal, Qt::Key_Escape);
        m_ventana->activateWindow();
        QTRY_VERIFY(dni->hasFocus());
    }

    void listaEnSusDosModosYEnEuskera()
    {
        TextosQt textosQt;
        QApplication::installTranslator(&textosQt);
        Entorno::altaDeclarante();
        elegir("mnuDeclarante", "mnuAbrirDeclarante");
        QCOMPARE(pantallas(), QStringList(u"FrmDecLista"_s));
        QCOMPARE(unico::la<cDecLista>().MODO(), u"C"_s);
        const QPointer<PantallaBase> abierta = pantalla("FrmDecLista");
        pulsarBarra("abrdec");
        QCOMPARE(pantalla("FrmDecLista"), abierta.data());
        pulsarBarra("elidec");
        QTRY_VERIFY(!abierta);
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecLista"_s));
        QCOMPARE(unico::la<cDecLista>().MODO(), u"E"_s);
        QCOMPARE(pantalla("FrmDecLista")->windowTitle(), u"Eliminar Declarante"_s);
        enEuskera();
        QStringList textos{pantalla("FrmDecLista")->windowTitle()};
        const auto *menu = qobject_cast<QMdiSubWindow *>(marco("FrmDecLista"))->systemMenu();
        for (const auto *una : menu->actions())
            textos += una->text();
        QCOMPARE(
            textos.join(u'|'),
            u"Deuseztatu aitortzailea|&Leheneratu|&Mugitu|&Tamaina|Mi&nimizatu|Ma&ximizatu|&Beti gainean||&Itxi"_s);
    }

    void recientes()
    {
        Entorno::altaDeclarante(u"12345678Z"_s, u"GOMEZ & HIJOS"_s);
        elegir("mnuDeclarante", "mnuAbrirDeclarante");
        const auto dos = Entorno::altaDeclarante(u"A58818501"_s, u"SEGUROS DOS"_s);
        QVERIFY(!accion("d1")->isVisible());
        Q_EMIT pantalla("FrmDecLista")->datosCambiados();
        QVERIFY(accion("d2")->isVisible() && !accion("d3")->isVisible());
        QCOMPARE(accion("d2")->text(), u"12345678Z - GOMEZ && HIJOS"_s);
        marco("FrmDecLista")->close();
        elegir("mnuDeclarante", "d1");
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecResumen"_s));
        QCOMPARE(unico::la<cDecResumen>().CSCO(), dos);
        QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"A"_s);
        elegir("mnuDeclarante", "d2");
        QTRY_COMPARE(m_ventana->findChildren<PantallaBase *>().size(), 1);
        QCOMPARE(unico::la<cDecResumen>().DNI(), u"12345678Z"_s);
        QCOMPARE(Manos(*pantalla("FrmDecResumen")).texto("lblnombre"), u"GOMEZ & HIJOS"_s);
    }

    void asistencia()
    {
        DialogosVentana dialogos;
        registrarServidor(&dialogos);
        QList<QUrl> abiertas;
        for (const bool hayNavegador : {true, false}) {
            navegador::sustituir([&](const QUrl &url) {
                abiertas += url;
                return hayNavegador;
            });
            if (!hayNavegador)
                m_mensajes->responder(QMessageBox::Ok);
            elegir("mnuAyuda", "mnuAsistenciaOnline");
        }
        navegador::sustituir({});
        QCOMPARE(m_mensajes->ficha(),
                 u"Warning|Navegador no encontrado|No se ha encontrado el navegador|Ok"_s);
        QVERIFY(abiertas.size() == 2 && abiertas[0].host() == u"www.varlenda.example");
        m_mensajes->responder(QMessageBox::Ok);
        elegir("mnuAyuda", "mnuDescripAsisOnline");
        QCOMPARE(m_mensajes->ficha(),
                 u"Information|Descripción del servicio|La asistencia on-line está en la dirección "
                 "%1 y se abre con el navegador. El programa no envía ningún dato suyo.|Ok"_s.arg(
                     abiertas[0].toString()));
    }

    void cerrarNoVuelveAMostrarNinguna()
    {
        Entorno::altaDeclarante();
        abrirPrograma();
        elegir("mnuDeclarante", "d1");
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecResumen"_s));
        // the declarant's data ask for the summary when they close
        Manos(*pantalla("FrmDecResumen")).pulsar("cmdDeclarante");
        QTRY_VERIFY(pantallas().contains(u"frmDecDatos"_s));
        const QSignalSpy pide(pantalla("frmDecDatos"), &PantallaBase::mostrar);
        elegir("mnuDeclarante", "mnuSalir");
        QTRY_COMPARE(m_ventana->findChildren<PantallaBase *>().size(), 0);
        QCOMPARE(pide.size(), 1);
    }

    /// What is behind an edited record can be seen, and is dead until the record is handed back.
    void loQueQuedaDetrasDeUnaEdicion()
    {
        const auto uno = Entorno::altaDeclarante();
        elegir("mnuDeclarante", "mnuAbrirDeclarante");
        pulsarBarra("nuedec");
        const Manos enLista(*pantalla("FrmDecLista"));
        auto *motivo = enLista.control<QLabel>("lblSuspendida");
        auto *tabla = enLista.control<QTableView>("flxDeclarantes");
        QVERIFY(motivo->isVisible() && !tabla->isEnabled());
        m_ventana->findChild<QMdiArea *>()->setActiveSubWindow(
            qobject_cast<QMdiSubWindow *>(marco("FrmDecLista")));
        const QPoint fila = tabla->visualRect(tabla->model()->index(0, 1)).center();
        QTest::mouseDClick(tabla->viewport(), Qt::LeftButton, {}, fila);
        for (const auto tecla : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Escape})
            QTest::keyClick(marco("FrmDecLista"), tecla);
        QCoreApplication::processEvents();
        QCOMPARE(pantallas(), QStringList({u"FrmDecLista"_s, u"frmDecDatos"_s}));
        QCOMPARE(unico::la<cDecResumen>().CSCO(), 0);
        enEuskera();
        QVERIFY(motivo->text().startsWith(u"Ez dago erabilgarri"));

        // what is stored meanwhile is seen behind
        Entorno::altaDeclarante(u"A58818501"_s, u"ZETA"_s);
        Q_EMIT pantalla("frmDecDatos")->datosCambiados();
        QCOMPARE(tabla->model()->rowCount(), 2);
        marco("frmDecDatos")->close();
        QTRY_VERIFY(!motivo->isVisible() && tabla->isEnabled());
        QTest::mouseClick(tabla->viewport(), Qt::LeftButton, {}, fila);
        QTest::mouseDClick(tabla->viewport(), Qt::LeftButton, {}, fila);
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecResumen"_s));
        QCOMPARE(unico::la<cDecResumen>().CSCO(), uno);
    }

    /// The ways out that are not the cancel button ask before they lose something, and only then.
    void cerrarConCambiosPregunta()
    {
        const auto escape = [this] { Manos(*pantalla("frmDecDatos")).tecla(Qt::Key_Escape); };
        const QList<std::function<void()>> salidas{
            [this] { QTest::keyClick(m_ventana.get(), Qt::Key_Q, Qt::ControlModifier); },
            [this] { marco("frmDecDatos")->close(); }, escape};
        const Manos datos = nuevoCon("txtnombre", u"UNO"_s);
        for (const auto &salir : salidas) {
            m_mensajes->responder(QMessageBox::No);
            salir();
            const auto cajas = m_mensajes->tomar();
            QCOMPARE(cajas.size(), 1);
            QCOMPARE(cajas.front().texto, msj(Msj::PreguntaCerrarSinGuardar));
            QCOMPARE(cajas.front().porDefecto, QMessageBox::No);
            QVERIFY(m_ventana->isVisible());
            QCOMPARE(datos.texto("txtnombre"), u"UNO"_s);
        }
        m_mensajes->responder(QMessageBox::Yes);
        escape();
        QTRY_VERIFY(!pantalla("frmDecDatos"));
        nuevoCon("txtnombre", u"UNO"_s);
        m_mensajes->responder(QMessageBox::Yes);
        pulsarBarra("salir");
        QTRY_VERIFY(!m_ventana->isVisible());
        QCOMPARE(m_mensajes->tomar().size(), 2);
    }

    /// A summary that cannot be shown any more stands in the way of no cancel.
    void cancelarSinResumen()
    {
        Entorno::altaDeclarante();
        abrirPrograma();
        elegir("mnuDeclarante", "d1");
        Manos(*pantalla("FrmDecResumen")).pulsar("cmdDeclarante");
        const ModeloPerdido perdido;
        m_mensajes->responder(QMessageBox::Ok);
        Manos(*pantalla("frmDecDatos")).pulsar("cmdCancelar");
        QVERIFY(m_mensajes->texto().contains(u"OstrMod.mdb"_s));
        QTRY_COMPARE(pantallas(), QStringList());
    }

    /// Where the window is small, whatever has the focus can be seen.
    void elFocoQuedaALaVista()
    {
        const auto *area = m_ventana->findChild<QMdiArea *>()->viewport();
        m_ventana->resize(683, 384);
        pulsarBarra("nuedec");
        auto *datos = pantalla("frmDecDatos");
        QSet<QWidget *> vistos;
        for (auto *foco = datos->focusWidget(); !vistos.contains(foco);
             foco = datos->focusWidget()) {
            vistos.insert(foco);
            const QRect enArea(foco->mapTo(area, QPoint()), foco->size());
            QVERIFY2(area->rect().contains(enArea) && !foco->visibleRegion().isEmpty(),
                     qPrintable(foco->objectName()));
            QTest::keyClick(foco, Qt::Key_Tab);
        }
        QVERIFY(vistos.contains(Manos(*datos).control("cmdCancelar")));
    }
};

QTEST_MAIN(TstMdiOstrel)
#include "tst_mdiostrel.moc"
