#include "app/MDIOstrel.h"
#include "app/TextosQt.h"
#include "core/CEntrada.h"
#include "core/Textos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "widgets/PantallaBase.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>

#include <optional>

using namespace Qt::StringLiterals;

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
        m_mensajes.emplace();
        abrirPrograma();
    }
    void cleanup()
    {
        m_ventana.reset();
        m_mensajes.reset();
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
        const ModeloPerdido perdido;
        desplegar("mnuDeclarante");
        QVERIFY(!accion("mnuAbrirDeclarante")->isEnabled());
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
        QCOMPARE(accion("mnuImport")->toolTip(), msj(Msj::DeshabilitadoEnEdicion));
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

    /// What is behind an edited record can be seen, and is dead until the record is handed back.
    void loQueQuedaDetrasDeUnaEdicion()
    {
        const auto uno = Entorno::altaDeclarante();
        elegir("mnuDeclarante", "mnuAbrirDeclarante");
        const auto *lista = pantalla("FrmDecLista");
        pulsarBarra("nuedec");
        QTRY_VERIFY(pantalla("frmDecDatos"));
        const Manos enLista(*pantalla("FrmDecLista"));
        auto *motivo = enLista.control<QLabel>("lblSuspendida");
        QVERIFY(motivo->isVisible());
        QCOMPARE(motivo->text(), msj(Msj::DeshabilitadoEnEdicion));
        auto *tabla = enLista.control<QTableView>("flxDeclarantes");
        QVERIFY(!tabla->isEnabled());
        m_ventana->findChild<QMdiArea *>()->setActiveSubWindow(
            qobject_cast<QMdiSubWindow *>(lista->parentWidget()));
        const QPoint fila = tabla->visualRect(tabla->model()->index(0, 1)).center();
        QTest::mouseDClick(tabla->viewport(), Qt::LeftButton, {}, fila);
        for (const auto tecla : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Escape})
            QTest::keyClick(lista->parentWidget(), tecla);
        QCoreApplication::processEvents();
        QCOMPARE(pantallas(), QStringList({u"FrmDecLista"_s, u"frmDecDatos"_s}));
        QCOMPARE(unico::la<cDecResumen>().CSCO(), 0);
        unico::la<CEntrada>().IDI(u"E"_s);
        m_ventana->CambiarIdioma();
        QVERIFY(motivo->text().startsWith(u"Ez dago erabilgarri"));

        pantalla("frmDecDatos")->parentWidget()->close();
        QTRY_VERIFY(!motivo->isVisible());
        QVERIFY(tabla->isEnabled());
        QTest::mouseClick(tabla->viewport(), Qt::LeftButton, {}, fila);
        QTest::mouseDClick(tabla->viewport(), Qt::LeftButton, {}, fila);
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecResumen"_s));
        QCOMPARE(unico::la<cDecResumen>().CSCO(), uno);
    }

    /// The ways out that are not the cancel button ask before they lose something, and only then.
    void cerrarConCambiosPregunta()
    {
        const auto nuevoConCambios = [this] {
            QTRY_VERIFY(!pantalla("frmDecDatos"));
            pulsarBarra("nuedec");
            QTRY_VERIFY(pantalla("frmDecDatos"));
            // still only typed: the box has the focus
            Manos(*pantalla("frmDecDatos")).escribir("txtnombre", u"UNO"_s);
        };
        const auto cerrarVentana
            = [this] { QTest::keyClick(m_ventana.get(), Qt::Key_Q, Qt::ControlModifier); };
        const auto escape = [this] { Manos(*pantalla("frmDecDatos")).tecla(Qt::Key_Escape); };
        const auto marco = [this] { pantalla("frmDecDatos")->parentWidget()->close(); };
        nuevoConCambios();
        for (const std::function<void()> &salir :
             {std::function<void()>(cerrarVentana), std::function<void()>(escape),
              std::function<void()>(marco)}) {
            m_mensajes->responder(QMessageBox::No);
            salir();
            const auto cajas = m_mensajes->tomar();
            QCOMPARE(cajas.size(), 1);
            QCOMPARE(cajas.front().texto, msj(Msj::PreguntaCerrarSinGuardar));
            QCOMPARE(cajas.front().porDefecto, QMessageBox::No);
            QVERIFY(m_ventana->isVisible());
            QCOMPARE(Manos(*pantalla("frmDecDatos")).texto("txtnombre"), u"UNO"_s);
        }
        m_mensajes->responder(QMessageBox::Yes);
        escape();
        QTRY_COMPARE(pantallas(), QStringList());
        nuevoConCambios();
        m_mensajes->responder(QMessageBox::Yes);
        elegir("mnuDeclarante", "mnuSalir");
        QTRY_VERIFY(!m_ventana->isVisible());
        QCOMPARE(m_mensajes->tomar().size(), 2);
    }

    /// A wrong text in the box with the focus stands in the way of no exit.
    void cancelarNoAvisa()
    {
        const QList<std::function<void(const Manos &)>> salidas = {
            [](const Manos &m) { m.pulsar("Piccan"); },
            [](const Manos &m) { m.pulsar("cmdCancelar"); },
            [](const Manos &m) {
                const QString texto = m.texto("cmdCancelar");
                const QChar letra = texto.at(texto.indexOf(u'&') + 1).toUpper();
                m.tecla(static_cast<Qt::Key>(letra.unicode()), Qt::AltModifier);
            },
            [this](const Manos &) {
                m_mensajes->responder(QMessageBox::Yes);
                pantalla("frmDecDatos")->parentWidget()->close();
            },
        };
        for (const auto &salir : salidas) {
            pulsarBarra("nuedec");
            QTRY_VERIFY(pantalla("frmDecDatos"));
            const Manos m(*pantalla("frmDecDatos"));
            m.escribir("txtcodprov", u"99"_s);
            QApplication::setActiveWindow(m_ventana.get());
            salir(m);
            QTRY_VERIFY(!pantalla("frmDecDatos"));
        }
        QCOMPARE(m_mensajes->tomar().size(), 1); // the question of the frame
    }

    /// Where the window is small, whatever has the focus can be seen.
    void elFocoQuedaALaVista()
    {
        m_ventana->resize(683, 384);
        pulsarBarra("nuedec");
        QTRY_VERIFY(pantalla("frmDecDatos"));
        auto *datos = pantalla("frmDecDatos");
        const auto *area = m_ventana->findChild<QMdiArea *>()->viewport();
        QSet<QWidget *> vistos;
        for (auto *foco = datos->focusWidget(); !vistos.contains(foco);
             foco = datos->focusWidget()) {
            vistos.insert(foco);
            const QRect enArea(foco->mapTo(area, QPoint()), foco->size());
            QVERIFY2(area->rect().contains(enArea), qPrintable(foco->objectName()));
            QVERIFY2(!foco->visibleRegion().isEmpty(), qPrintable(foco->objectName()));
            Manos(*datos).tecla(Qt::Key_Tab);
        }
        QVERIFY(vistos.contains(Manos(*datos).control("cmdCancelar")));
    }

    void atajoDeSalirYBotonDeSalir()
    {
        QTest::keyClick(m_ventana.get(), Qt::Key_Q, Qt::ControlModifier);
        QTRY_VERIFY(!m_ventana->isVisible());
        abrirPrograma();
        pulsarBarra("salir");
        QTRY_VERIFY(!m_ventana->isVisible());
    }

    /// The pages of a 480 follow each other where the user has put the frame.
    void lasPaginasDel480SeQuedanEnSuSitio()
    {
        Entorno::altaDeclaracion(Entorno::altaDeclarante(), 2026, 12, u"480"_s);
        elegir("mnuDeclarante", "mnuAbrirDeclarante");
        auto *lista = pantalla("FrmDecLista")->findChild<QTableView *>(u"flxDeclarantes"_s);
        const QPoint fila = lista->visualRect(lista->model()->index(0, 1)).center();
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, fila);
        QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, fila);
        QTRY_COMPARE(pantallas(), QStringList(u"FrmDecResumen"_s));
        auto *grid = pantalla("FrmDecResumen")->findChild<QTableView *>(u"flxDeclaraciones"_s);
        const QPoint anual = grid->visualRect(grid->model()->index(0, 1)).center();
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, anual);
        Manos(*pantalla("FrmDecResumen")).pulsar("cmdDatos");
        QTRY_VERIFY(pantalla("FrmDatos480a"));
        const QRect sitio(31, 17, pantalla("FrmDatos480a")->parentWidget()->width() + 40, 600);
        pantalla("FrmDatos480a")->parentWidget()->setGeometry(sitio);
        for (const char *pagina : {"FrmDatos480a", "FrmDatos480b"}) {
            Manos(*pantalla(pagina)).pulsar("cmdSiguiente");
            QTRY_VERIFY(!pantalla(pagina));
            const QString siguiente
                = qstrcmp(pagina, "FrmDatos480a") == 0 ? u"FrmDatos480b"_s : u"FrmDatos480c"_s;
            QTRY_VERIFY(pantallas().contains(siguiente));
            QCOMPARE(pantalla(siguiente.toLatin1().constData())->parentWidget()->geometry(), sitio);
        }
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

QTEST_MAIN(TstMdiOstrel)
#include "tst_mdiostrel.moc"
