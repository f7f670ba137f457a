#include "dataservice/ErrorDatos.h"
#include "declarants/FrmDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/cImOf.h"
#include "printing/cImprimirVarias.h"
#include "resources/TablaMensajes.h"
#include "support/ListaAbierta.h"
#include "support/Retrato.h"

#include <QAbstractItemView>
#include <QComboBox>

/// The summary of one declarant with the 430 returns of the months given, of 2025.
struct Resumen : ListaAbierta<FrmDecResumen>
{
    explicit Resumen(const QList<int> &meses = {}, bool anual = false)
    {
        csco = Entorno::altaDeclarante();
        for (const int mes : meses)
            claves += Entorno::altaDeclaracion(csco, 2025, static_cast<quint8>(mes));
        if (anual)
            claves += Entorno::altaDeclaracion(csco, 2025, 12, u"480"_s);
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.TomarDeclarante(csco, u"12345678Z"_s, u"SEGUROS UNO"_s);
        cabecera.ENTRADA(u"A"_s);
        cabecera.CSDE(99);
        abrir();
    }

    QComboBox *combo(const char *nombre) const { return manos->control<QComboBox>(nombre); }
    void elegirEntrada(const char *nombre, const QString &texto) const
    {
        auto *lista = combo(nombre);
        lista->setFocus(Qt::TabFocusReason);
        lista->showPopup();
        QTest::keyClicks(lista->view(), texto);
        QTest::keyClick(lista->view(), Qt::Key_Return);
    }
    /// Exercise, model and period as they stand in the frame of the new return; nothing without it.
    QString propuesta() const
    {
        const QStringList partes{manos->texto("txtejer"), combo("cmbmodelo")->currentText(),
                                 combo("cmbperiodo")->currentText()};
        return manos->control("fraNueva")->isVisible() ? partes.join(u'/') : QString();
    }
    /// The frame of the new return is open.
    void nueva(const QString &propone)
    {
        manos->pulsar("ImgNueva");
        QCOMPARE(propuesta(), propone);
    }

    qint32 csco = 0;
    QList<qint32> claves;
};

static cDecResumen &cabecera()
{
    return unico::la<cDecResumen>();
}

class TstFrmDecResumen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Whole rows and headers; the newest return is selected.
    void lista()
    {
        Resumen r({1, 12}, true);
        cabecera().EJERCICIO(2025);
        cabecera().CambiarModelo(u"430"_s);
        cabecera().PERIODO(3);
        cDatos430 mensual;
        mensual.MODO(u"A"_s);
        mensual.BASELIQ(12345678);
        mensual.CalcularValores();
        const qint32 clave = mensual.GuardarDeclaracion(mensual.RegistroGuardar());
        r.abrir();
        QCOMPARE(cabecera().MODO(), u"L"_s);
        compararRetrato(*r.pantalla,
                        u"SEGUROS UNO\nDNI-CIF: 12345678Z\n"
                        "4 declaraciones seleccionadas <Nueva Declaración>\n<Datos>\n<Imprimir>\n"
                        "<Eliminar declaración>\n<Declarante>\n<Cerrar>"_s);
        QCOMPARE(r.fila(0), u"%1|2025|1|ENERO|430|1|0,00|1"_s.arg(r.claves[0]));
        QCOMPARE(r.fila(1), u"%1|2025|1|MARZO|430|1|9.876,54|3"_s.arg(clave));
        QCOMPARE(r.fila(3), u"%1|2025|2|ANUAL|480|2|0,00|12"_s.arg(r.claves[2]));
        QCOMPARE(r.grid()->currentIndex().row(), 3);
        QCOMPARE(cabecera().CSDE(), r.claves[2]);
        for (const char *boton : {"cmdDatos", "cmdImprimir", "cmdEliminar"})
            QVERIFY(r.manos->control(boton)->isEnabled());
        r.tecla(Qt::Key_Up);
        QCOMPARE(cabecera().CSDE(), r.claves[1]);
        // back from an entry screen, the return is selected again
        cabecera().ENTRADA(u"P"_s);
        cabecera().CSDE(clave);
        r.abrir();
        QCOMPARE(cabecera().CSDE(), clave);
        QCOMPARE(r.grid()->currentIndex().row(), 1);
        QVERIFY(r.manos->control("cmdDatos")->isEnabled());
        cabecera().ENTRADA(u"P"_s);
        cabecera().CSDE(r.claves[0]);
        r.abrir();
        QCOMPARE(r.grid()->currentIndex().row(), 0);
        r.manos->pulsar("cmdDeclarante");
        QCOMPARE(r.siguiente, Pantalla::DatosDeclarante);
        const auto &datos = unico::la<cDecDatos>();
        QCOMPARE(unidos({datos.MODO(), datos.CSCO(), datos.NUM430(), datos.NUM480()}),
                 u"C|%1|3|1"_s.arg(r.csco));
    }

    /// The months left out before the one proposed stand beside it.
    void mesesSinDeclarar()
    {
        Resumen r({2, 3, 6});
        r.nueva(u"2025/430/JULIO"_s);
        QCOMPARE(r.manos->texto("lblFaltan"),
                 u"Meses anteriores sin declarar: 2025: ABRIL, MAYO"_s);
        r.elegirEntrada("cmbperiodo", u"MARZO"_s);
        QVERIFY(!r.manos->control("lblFaltan")->isVisible());
        r.manos->escribir("txtejer", u"2026"_s);
        r.elegirEntrada("cmbmodelo", u"430"_s);
        r.manos->escribir("cmbperiodo", u"febrero"_s);
        r.manos->tecla(Qt::Key_Tab);
        QCOMPARE(r.manos->texto("lblFaltan"),
                 u"Meses anteriores sin declarar: 2025: ABRIL, MAYO, JULIO, AGOSTO, SEPTIEMBRE, "
                 "OCTUBRE, NOVIEMBRE, DICIEMBRE; 2026: ENERO"_s);
    }

    /// A failure in between changes neither the mode nor the header.
    void propuestaQueFalla()
    {
        Resumen r({1});
        {
            const ModeloPerdido perdido;
            r.responderYPulsar(QMessageBox::Ok, "ImgNueva");
        }
        QCOMPARE(cabecera().MODO() + r.propuesta(), u"L"_s);
        r.nueva(u"2025/430/FEBRERO"_s);
        // a list that cannot be read again leaves nothing to be opened or deleted
        {
            const ModeloPerdido perdido;
            r.mensajes.responder(QMessageBox::Ok);
            r.pantalla->Actualizar();
        }
        QVERIFY(!r.manos->control("cmdDatos")->isEnabled() && r.filas() == 0);
        r.pantalla->Actualizar();
        QVERIFY(r.manos->control("cmdDatos")->isEnabled());
        cabecera().EJERCICIO(2024);
        const ModeloPerdido perdido;
        QVERIFY_EXCEPTION_THROWN(FrmDecResumen(), ErrorDatos);
        QCOMPARE(int(cabecera().EJERCICIO()), 2024);
    }

    /// By hand, from an empty proposal; the last entry is committed by the press itself.
    void crear()
    {
        for (const bool anual : {false, true}) {
            Resumen r;
            QCOMPARE(cabecera().CSDE(), 0);
            const QString periodo = anual ? u"ANUAL"_s : u"MARZO"_s;
            r.manos->pulsar("ImgNueva");
            QTest::keyClicks(r.manos->control("txtejer"), u"2026"_s);
            r.elegirEntrada("cmbmodelo", anual ? u"480"_s : u"430"_s);
            r.manos->escribir("cmbperiodo", periodo.toLower());
            QCOMPARE(r.combo("cmbperiodo")->currentText(), periodo);
            r.manos->tecla(Qt::Key_Return);
            QCOMPARE(r.manos->foco(), u"ImgNueva"_s);
            r.manos->tecla(Qt::Key_Return);
            QCOMPARE(
                unidos({cabecera().EJERCICIO(), cabecera().PERIODO(),
                        anual ? unico::la<cDatos480>().MODO() : unico::la<cDatos430>().MODO()}),
                anual ? u"2026|12|A"_s : u"2026|3|A"_s);
            QCOMPARE(r.siguiente, anual ? Pantalla::Datos480a : Pantalla::Datos430);
            QVERIFY(!r.pantalla->isVisible());
        }
    }

    void otroEjercicioVacia()
    {
        Resumen r({1});
        r.manos->pulsar("ImgNueva");
        r.manos->escribir("txtejer", u"2o24"_s);
        QCOMPARE(r.manos->texto("txtejer"), u"224"_s);
        r.manos->escribir("txtejer", u"2025"_s);
        r.manos->tecla(Qt::Key_Tab);
        QCOMPARE(r.propuesta(), u"2025/430/FEBRERO"_s);
        r.manos->escribir("txtejer", u"2024"_s);
        r.manos->control("ImgNueva")->setFocus();
        QCOMPARE(r.propuesta(), u"2024//"_s);
        QCOMPARE(unidos({cabecera().EJERCICIO(), cabecera().MODELO()}), u"2024|"_s);
    }

    void mensajesDeCabecera()
    {
        const QString fuera = msj(Msj::ErrorEjercicioPeriodoFuera, u"2002-01"_s, u"2030-12"_s);
        for (const auto &[datos, motivo, foco] :
             {std::tuple{u"//"_s, textoMensaje(255, Idioma::Castellano), u"txtejer"_s},
              {u"2025/430/"_s, textoMensaje(256, Idioma::Castellano), u"cmbperiodo"_s},
              {u"2025//ENERO"_s, textoMensaje(257, Idioma::Castellano), u"cmbmodelo"_s},
              {u"2031/430/MAYO"_s, fuera, u"txtejer"_s},
              {u"2025/430/ENERO"_s, textoMensaje(259, Idioma::Castellano), u"txtejer"_s}}) {
            Resumen r({1});
            r.manos->pulsar("ImgNueva");
            r.manos->escribir("txtejer", u"1"_s);
            r.manos->tecla(Qt::Key_Return);
            r.manos->escribir("txtejer", datos.section(u'/', 0, 0));
            for (int i = 1; i <= 2; ++i)
                if (const QString entrada = datos.section(u'/', i, i); !entrada.isEmpty())
                    r.elegirEntrada(i == 1 ? "cmbmodelo" : "cmbperiodo", entrada);
            r.responderYPulsar(QMessageBox::Ok, "ImgNueva");
            QCOMPARE(r.mensajes.texto(), motivo);
            QCOMPARE(r.manos->foco(), foco);
            QVERIFY(r.pantalla->isVisible() && !r.siguiente);
        }
    }

    void entradasDeLasListas()
    {
        Resumen r({1});
        r.manos->pulsar("ImgNueva");
        r.manos->escribir("cmbperiodo", u"x9"_s);
        r.mensajes.responder(QMessageBox::Ok);
        r.manos->tecla(Qt::Key_Tab);
        QCOMPARE(r.mensajes.texto(), msj(Msj::ErrorPeriodoLista));
        QTRY_COMPARE(r.manos->foco() + r.propuesta(), u"cmbperiodo2025/430/X9"_s);
        QCOMPARE(int(cabecera().PERIODO()), 2);
        QApplication::setActiveWindow(r.pantalla.get());
        r.manos->escribir("cmbperiodo", u"marzo"_s);
        r.manos->control("txtejer")->setFocus();
        r.manos->tecla(Qt::Key_Tab);
        auto *modelo = r.combo("cmbmodelo");
        QTRY_VERIFY(modelo->view()->isVisible());
        QTest::keyClick(modelo->view(), Qt::Key_Down);
        QTest::keyClick(modelo->view(), Qt::Key_Tab);
        QVERIFY(!modelo->view()->isVisible());
        QCOMPARE(r.manos->foco(), u"cmbperiodo"_s);
        QCOMPARE(r.propuesta(), u"2025/480/ANUAL"_s);
        QCOMPARE(int(cabecera().PERIODO()), 12);
        r.elegirEntrada("cmbmodelo", u"430"_s);
        QCOMPARE(r.propuesta(), u"2025/430/"_s);
    }

    void abandonar()
    {
        Resumen r({12});
        QCOMPARE(r.propuesta(), QString());
        // with what is proposed, and with something that is not in the list
        for (const bool conError : {false, true})
            for (const bool escape : {true, false}) {
                r.nueva(u"2025/480/ANUAL"_s);
                QCOMPARE(cabecera().MODO() + r.manos->foco(), u"Ntxtejer"_s);
                if (conError)
                    r.manos->escribir("cmbperiodo", u"x9"_s);
                if (escape)
                    r.manos->tecla(Qt::Key_Escape);
                else
                    r.manos->pulsar("cmdAbandonar");
                QCOMPARE(unidos({r.propuesta(), cabecera().MODO(), cabecera().EJERCICIO(),
                                 r.manos->foco()}),
                         u"|L|0|flxDeclaraciones"_s);
                r.manos->tecla(Qt::Key_Tab);
            }
        r.nueva(u"2025/480/ANUAL"_s);
        Entorno::pasarAEuskera(*r.pantalla);
        QCOMPARE(r.pantalla->windowTitle(), u"Aitortzailea - Aitorpenak"_s);
        QCOMPARE(unidos({r.propuesta(), r.celda(0, 3), r.manos->texto("lblNumDecla")}),
                 u"2025/480/URTEKOA|ABENDUA|1 aitorpen hautatu d(ir)a"_s);
    }

    void abrirDeclaracion()
    {
        for (const auto &[fila, manera] :
             {std::pair{0, "cmdDatos"}, {0, "double click"}, {0, "menu"}, {1, "Enter"}}) {
            Resumen r({12}, true);
            r.abrirFila(fila, manera, "cmdDatos");
            QCOMPARE(r.siguiente, fila == 1 ? Pantalla::Datos480a : Pantalla::Datos430);
            const auto &mensual = unico::la<cDatos430>();
            const auto &anual = unico::la<cDatos480>();
            QCOMPARE(unidos({cabecera().EJERCICIO(), cabecera().TIPOLOGIA(),
                             fila == 1 ? anual.MODO() : mensual.MODO(),
                             fila == 1 ? anual.CSDE() : mensual.CSDE()}),
                     u"2025|%1|C|%2"_s.arg(fila + 1).arg(r.claves[fila]));
        }
    }

    /// The header is one: what is printed must not end in the new return that was being prepared.
    void imprimirDeshaceLaPropuesta()
    {
        Resumen r({1, 2});
        r.elegir(0);
        r.manos->pulsar("ImgNueva");
        r.manos->pulsar("cmdImprimir");
        QCOMPARE(r.siguiente, Pantalla::Impresion);
        QVERIFY(r.pantalla->isVisible());
        const auto &p = unico::la<cImOf>();
        QCOMPARE(unidos({r.propuesta(), cabecera().PERIODO(), p.CSCO(), p.CSDE(), p.MODELO()}),
                 u"|1|%1|%2|430"_s.arg(r.csco).arg(r.claves[0]));
        r.elegir(1);
        r.siguiente.reset();
        r.tecla(Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(r.siguiente, Pantalla::Impresion);
        QCOMPARE(p.CSDE(), r.claves[1]);
    }

    /// Several rows can only be printed, by the button as by keys and menu.
    void variasFilas()
    {
        Resumen r({1, 2, 3}, true);
        r.elegir(1);
        QTest::mouseClick(r.grid()->viewport(), Qt::LeftButton, Qt::ControlModifier, r.lugar(3));
        QCOMPARE(cabecera().CSDE(), 0);
        for (const char *boton : {"cmdDatos", "cmdEliminar"})
            QVERIFY2(!r.manos->control(boton)->isEnabled(), boton);
        r.tecla(Qt::Key_Return);
        r.tecla(Qt::Key_Delete);
        QVERIFY(!r.siguiente);
        for (const bool menu : {false, true}) {
            r.siguiente.reset();
            if (menu)
                r.manos->elegirEnMenu(*r.grid(), r.lugar(1), "cmdImprimir");
            else
                r.tecla(Qt::Key_P, Qt::ControlModifier);
            QVERIFY2(r.siguiente == Pantalla::ImprimirVarias, menu ? "menu" : "key");
        }
        QVariantList pedidas;
        for (const auto &fila : unico::la<cImprimirVarias>().filas())
            pedidas += {fila.csco, fila.csde, fila.dni, fila.nombre, fila.cabecera.nombre()};
        QCOMPARE(unidos(pedidas),
                 u"%1|%2|12345678Z|SEGUROS UNO|430 FEBRERO 2025|"
                 "%1|%3|12345678Z|SEGUROS UNO|480 ANUAL 2025"_s.arg(r.csco)
                     .arg(r.claves[1])
                     .arg(r.claves[3]));
        r.elegir(2);
        QCOMPARE(cabecera().CSDE(), r.claves[2]);
        QVERIFY(r.manos->control("cmdEliminar")->isEnabled());
    }

    void borrar()
    {
        Resumen r({1, 2});
        QSignalSpy cambios(r.pantalla.get(), &PantallaBase::datosCambiados);
        r.elegir(1);
        r.responderYPulsar(QMessageBox::No, "cmdEliminar");
        QCOMPARE(
            r.mensajes.ficha(),
            u"Question|Borrado de la declaración|¿Esta seguro que desea eliminar la declaración: "
            "2025 - FEBRERO ?|No"_s);
        QCOMPARE(r.filas(), 2);

        QSignalSpy dichos(r.pantalla.get(), &PantallaBase::dicho);
        r.mensajes.responder(QMessageBox::Yes);
        r.grid()->setFocus();
        r.tecla(Qt::Key_Delete);
        QCOMPARE(r.filas(), 1);
        QCOMPARE(r.manos->foco(), u"flxDeclaraciones"_s);
        QCOMPARE(cabecera().CSDE(), r.claves[0]);
        QCOMPARE(cambios.count(), 1);
        QCOMPARE(dichos.front().front().toString(), u"Declaración eliminada: 430 FEBRERO 2025"_s);
        {
            const ModeloPerdido perdido;
            r.mensajes.responder(QMessageBox::Yes);
            r.responderYPulsar(QMessageBox::Ok, "cmdEliminar");
        }
        QCOMPARE(r.filas(), 1);
        r.responderYPulsar(QMessageBox::Yes, "cmdEliminar");
        QCOMPARE(r.manos->foco(), u"cmdDeclarante"_s);
        QCOMPARE(r.manos->texto("lblNumDecla"), u"No existen declaraciones"_s);
    }

    void borradaEnOtraCopia()
    {
        Resumen r({1, 2});
        cDecResumen().BorrarDeclaracion(cabecera().CargarDeclaraciones()[1]);
        r.mensajes.responder(QMessageBox::Yes);
        r.responderYPulsar(QMessageBox::Ok, "cmdEliminar");
        QCOMPARE(r.mensajes.tomar()[1].texto,
                 msj(Msj::EliminadoEnOtraCopia, u"430 FEBRERO 2025"_s));
        QCOMPARE(r.filas(), 1);
    }
};

QTEST_MAIN(TstFrmDecResumen)
#include "tst_frmdecresumen.moc"
