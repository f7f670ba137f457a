#include "core/Textos.h"
#include "dataservice/ErrorDatos.h"
#include "declarants/FrmDecResumen.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/cImOf.h"
#include "support/PantallaAbierta.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>

using namespace Qt::StringLiterals;

/// The summary of one declarant with the 430 returns of the months given, of 2025.
struct Resumen : PantallaAbierta<FrmDecResumen>
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

    QTableView *grid() const { return manos->control<QTableView>("flxDeclaraciones"); }
    QComboBox *combo(const char *nombre) const { return manos->control<QComboBox>(nombre); }
    QString celda(int fila, int columna) const
    {
        return grid()->model()->index(fila, columna).data().toString();
    }
    void elegir(int fila) const
    {
        const QPoint lugar = grid()->visualRect(grid()->model()->index(fila, 1)).center();
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, lugar);
    }
    void elegirEntrada(const char *nombre, const QString &texto) const
    {
        auto *lista = combo(nombre);
        lista->setFocus(Qt::TabFocusReason);
        lista->showPopup();
        QTest::keyClicks(lista->view(), texto);
        QTest::keyClick(lista->view(), Qt::Key_Return);
    }
    /// Exercise, model and period as they stand in the frame.
    QString propuesta() const
    {
        return manos->texto("txtejer") + u'/' + combo("cmbmodelo")->currentText() + u'/'
            + combo("cmbperiodo")->currentText();
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
        QCOMPARE(r.manos->texto("lblnombre"), u"SEGUROS UNO"_s);
        QVERIFY(r.manos->texto("lbldni").contains(u"12345678Z"_s));
        QCOMPARE(r.manos->texto("lblNumDecla"), u"4 declaraciones seleccionadas"_s);
        for (int i = 0; i < 8; ++i)
            QCOMPARE(r.grid()->isColumnHidden(i), i == 0 || i == 2 || i == 5 || i == 7);
        QStringList titulos;
        for (const int columna : {1, 3, 4, 6})
            titulos += r.grid()->model()->headerData(columna, Qt::Horizontal, 0).toString();
        QCOMPARE(titulos.join(u'|'), u"Ejercicio|Período|Modelo|Importe"_s);
        const auto fila = [&r](int numero) {
            QStringList celdas;
            for (int i = 0; i < 8; ++i)
                celdas += r.celda(numero, i);
            return celdas.join(u'|');
        };
        QCOMPARE(fila(0), u"%1|2025|1|ENERO|430|1|0,00|1"_s.arg(r.claves[0]));
        QCOMPARE(fila(1), u"%1|2025|1|MARZO|430|1|9.876,54|3"_s.arg(clave));
        QCOMPARE(fila(3), u"%1|2025|2|ANUAL|480|2|0,00|12"_s.arg(r.claves[2]));
        QCOMPARE(r.grid()->currentIndex().row(), 3);
        QCOMPARE(cabecera().CSDE(), r.claves[2]);
        for (const char *boton : {"cmdDatos", "cmdImprimir", "cmdEliminar"})
            QVERIFY(r.manos->control(boton)->isEnabled());
        QTest::keyClick(r.grid(), Qt::Key_Up);
        QCOMPARE(cabecera().CSDE(), r.claves[1]);
    }

    /// The months left out before the one proposed stand beside it.
    void mesesSinDeclarar()
    {
        Resumen r({2, 3, 6});
        r.manos->pulsar("ImgNueva");
        QCOMPARE(r.propuesta(), u"2025/430/JULIO"_s);
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
        QCOMPARE(cabecera().MODO(), u"L"_s);
        QVERIFY(!r.manos->control("fraNueva")->isVisible());
        r.manos->pulsar("ImgNueva");
        QCOMPARE(r.propuesta(), u"2025/430/FEBRERO"_s);
    }

    /// A list that cannot be read again leaves nothing to be opened or deleted.
    void listaQueFalla()
    {
        Resumen r({1});
        {
            const ModeloPerdido perdido;
            r.mensajes.responder(QMessageBox::Ok);
            r.pantalla->Actualizar();
        }
        QVERIFY(!r.manos->control("cmdDatos")->isEnabled());
        QCOMPARE(r.grid()->model()->rowCount(), 0);
        r.pantalla->Actualizar();
        QVERIFY(r.manos->control("cmdDatos")->isEnabled());
        cabecera().EJERCICIO(2024);
        const ModeloPerdido perdido;
        QVERIFY_EXCEPTION_THROWN(FrmDecResumen(), ErrorDatos);
        QCOMPARE(int(cabecera().EJERCICIO()), 2024);
    }

    void propuesta()
    {
        Resumen r({12});
        QVERIFY(!r.manos->control("fraNueva")->isVisible());
        r.manos->pulsar("ImgNueva");
        QVERIFY(r.manos->control("fraNueva")->isVisible());
        QCOMPARE(cabecera().MODO(), u"N"_s);
        QCOMPARE(r.propuesta(), u"2025/480/ANUAL"_s);
        QCOMPARE(r.manos->foco(), u"txtejer"_s);
    }

    /// By hand, from an empty proposal; the last entry is committed by the press itself.
    void crear()
    {
        for (const bool anual : {false, true}) {
            Resumen r;
            const QString periodo = anual ? u"ANUAL"_s : u"MARZO"_s;
            r.manos->pulsar("ImgNueva");
            QTest::keyClicks(r.manos->control("txtejer"), u"2026"_s);
            r.elegirEntrada("cmbmodelo", anual ? u"480"_s : u"430"_s);
            r.manos->escribir("cmbperiodo", periodo.toLower());
            QCOMPARE(r.combo("cmbperiodo")->currentText(), periodo);
            r.manos->tecla(Qt::Key_Return);
            QCOMPARE(r.manos->foco(), u"ImgNueva"_s);
            r.manos->tecla(Qt::Key_Return);
            QCOMPARE(cabecera().EJERCICIO(), 2026);
            QCOMPARE(int(cabecera().PERIODO()), anual ? 12 : 3);
            QCOMPARE(r.siguiente, anual ? Pantalla::Datos480a : Pantalla::Datos430);
            QCOMPARE(anual ? unico::la<cDatos480>().MODO() : unico::la<cDatos430>().MODO(), u"A"_s);
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
        QCOMPARE(cabecera().EJERCICIO(), 2024);
        QCOMPARE(cabecera().MODELO(), QString());
    }

    void mensajesDeCabecera()
    {
        const auto caso = [](const QString &ejercicio, const QString &modelo,
                             const QString &periodo, qint16 codigo, const QString &foco) {
            Resumen r({1});
            r.manos->pulsar("ImgNueva");
            r.manos->escribir("txtejer", u"1"_s);
            r.manos->tecla(Qt::Key_Return);
            r.manos->escribir("txtejer", ejercicio);
            if (!modelo.isEmpty())
                r.elegirEntrada("cmbmodelo", modelo);
            if (!periodo.isEmpty())
                r.elegirEntrada("cmbperiodo", periodo);
            r.responderYPulsar(QMessageBox::Ok, "ImgNueva");
            QCOMPARE(r.mensajes.texto(), textoCabecera(codigo));
            QCOMPARE(r.manos->foco(), foco);
            QVERIFY(r.pantalla->isVisible() && !r.siguiente);
        };
        caso({}, {}, {}, 1, u"txtejer"_s);
        caso(u"2025"_s, u"430"_s, {}, 2, u"cmbperiodo"_s);
        caso(u"2031"_s, u"430"_s, u"MAYO"_s, 4, u"txtejer"_s);
        caso(u"2025"_s, u"430"_s, u"ENERO"_s, 5, u"txtejer"_s);
    }

    void noEstaEnLaLista()
    {
        Resumen r({1});
        r.manos->pulsar("ImgNueva");
        auto *combo = r.combo("cmbperiodo");
        combo->setFocus(Qt::PopupFocusReason);
        combo->lineEdit()->selectAll();
        QTest::keyClicks(combo, u"x9"_s);
        r.mensajes.responder(QMessageBox::Ok);
        QTest::keyClick(combo, Qt::Key_Tab);
        QCOMPARE(r.mensajes.texto(), msj(Msj::ErrorPeriodoLista));
        QTRY_COMPARE(r.manos->foco(), u"cmbperiodo"_s);
        QCOMPARE(combo->currentText(), u"X9"_s);
        QCOMPARE(int(cabecera().PERIODO()), 2);
    }

    void tabuladorSaleDeLaLista()
    {
        Resumen r({1});
        r.manos->pulsar("ImgNueva");
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
        Resumen r({1});
        const auto comprobar = [&r] {
            QVERIFY(!r.manos->control("fraNueva")->isVisible());
            QCOMPARE(cabecera().MODO(), u"L"_s);
            QCOMPARE(cabecera().EJERCICIO(), 0);
            QCOMPARE(r.manos->foco(), u"flxDeclaraciones"_s);
        };
        r.manos->pulsar("ImgNueva");
        r.manos->tecla(Qt::Key_Escape);
        comprobar();
        r.manos->pulsar("ImgNueva");
        r.manos->pulsar("cmdAbandonar");
        comprobar();
        // with something in the frame that is not in the list
        for (const char *manera : {"Escape", "cmdAbandonar"}) {
            r.manos->pulsar("ImgNueva");
            r.manos->escribir("cmbperiodo", u"x9"_s);
            if (qstrcmp(manera, "Escape") == 0)
                r.manos->tecla(Qt::Key_Escape);
            else
                r.manos->pulsar(manera);
            comprobar();
            r.manos->tecla(Qt::Key_Tab);
        }
    }

    void abrirDeclaracion()
    {
        for (const auto &[fila, manera] :
             {std::pair{0, "cmdDatos"}, {0, "double click"}, {0, "menu"}, {1, "Enter"}}) {
            Resumen r({12}, true);
            r.elegir(fila);
            const QPoint lugar = r.grid()->visualRect(r.grid()->model()->index(fila, 1)).center();
            if (qstrcmp(manera, "Enter") == 0)
                QTest::keyClick(r.grid(), Qt::Key_Return);
            else if (qstrcmp(manera, "double click") == 0)
                QTest::mouseDClick(r.grid()->viewport(), Qt::LeftButton, {}, lugar);
            else if (qstrcmp(manera, "menu") == 0)
                r.manos->elegirEnMenu(*r.grid(), lugar, "cmdDatos");
            else
                r.manos->pulsar(manera);
            QCOMPARE(r.siguiente, fila == 1 ? Pantalla::Datos480a : Pantalla::Datos430);
            QCOMPARE(cabecera().EJERCICIO(), 2025);
            QCOMPARE(int(cabecera().TIPOLOGIA()), fila + 1);
            const auto &mensual = unico::la<cDatos430>();
            const auto &anual = unico::la<cDatos480>();
            QCOMPARE(fila == 1 ? anual.MODO() : mensual.MODO(), u"C"_s);
            QCOMPARE(fila == 1 ? anual.CSDE() : mensual.CSDE(), r.claves[fila]);
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
        QVERIFY(!r.manos->control("fraNueva")->isVisible());
        QCOMPARE(int(cabecera().PERIODO()), 1);
        const auto &peticion = unico::la<cImOf>();
        QCOMPARE(peticion.CSCO(), r.csco);
        QCOMPARE(peticion.CSDE(), r.claves[0]);
        QCOMPARE(peticion.MODELO(), u"430"_s);

        r.elegir(1);
        r.siguiente.reset();
        QTest::keyClick(r.grid(), Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(r.siguiente, Pantalla::Impresion);
        QCOMPARE(peticion.CSDE(), r.claves[1]);
    }

    void borrar()
    {
        Resumen r({1, 2});
        QSignalSpy cambios(r.pantalla.get(), &PantallaBase::datosCambiados);
        r.elegir(1);
        r.responderYPulsar(QMessageBox::No, "cmdEliminar");
        const auto vistos = r.mensajes.tomar();
        QCOMPARE(vistos.size(), 1);
        QCOMPARE(vistos[0].titulo, u"Borrado de la declaración"_s);
        QCOMPARE(vistos[0].texto,
                 u"¿Esta seguro que desea eliminar la declaración: 2025 - FEBRERO ?"_s);
        QCOMPARE(vistos[0].porDefecto, QMessageBox::No);
        QCOMPARE(r.grid()->model()->rowCount(), 2);

        QSignalSpy dichos(r.pantalla.get(), &PantallaBase::dicho);
        r.mensajes.responder(QMessageBox::Yes);
        r.grid()->setFocus();
        QTest::keyClick(r.grid(), Qt::Key_Delete);
        QCOMPARE(r.grid()->model()->rowCount(), 1);
        QCOMPARE(r.manos->foco(), u"flxDeclaraciones"_s);
        QCOMPARE(cabecera().CSDE(), r.claves[0]);
        QCOMPARE(cambios.count(), 1);
        QCOMPARE(dichos.front().front().toString(), u"Declaración eliminada: 430 FEBRERO 2025"_s);
        {
            const ModeloPerdido perdido;
            r.mensajes.responder(QMessageBox::Yes);
            r.responderYPulsar(QMessageBox::Ok, "cmdEliminar");
        }
        QCOMPARE(r.grid()->model()->rowCount(), 1);
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
        QCOMPARE(r.grid()->model()->rowCount(), 1);
    }

    /// Back from an entry screen, the return is selected again.
    void volver()
    {
        Resumen r({1, 2, 3});
        cabecera().ENTRADA(u"P"_s);
        cabecera().CSDE(r.claves[1]);
        r.abrir();
        QCOMPARE(cabecera().CSDE(), r.claves[1]);
        QCOMPARE(r.grid()->currentIndex().row(), 1);
        QVERIFY(r.manos->control("cmdDatos")->isEnabled());
    }

    void declarante()
    {
        Resumen r({1});
        r.manos->pulsar("cmdDeclarante");
        QCOMPARE(r.siguiente, Pantalla::DatosDeclarante);
        const auto &datos = unico::la<cDecDatos>();
        QCOMPARE(datos.MODO(), u"C"_s);
        QCOMPARE(datos.CSCO(), r.csco);
        QCOMPARE(datos.NUM430(), 1.0);
    }

    void idioma()
    {
        Resumen r({1});
        r.elegir(0);
        r.manos->pulsar("ImgNueva");
        Entorno::pasarAEuskera(*r.pantalla);
        QCOMPARE(r.pantalla->windowTitle(), u"Aitortzailea - Aitorpenak"_s);
        QCOMPARE(r.celda(0, 3), u"URTARRILA"_s);
        QCOMPARE(r.propuesta(), u"2025/430/OTSAILA"_s);
        QCOMPARE(r.grid()->currentIndex().row(), 0);
        QCOMPARE(r.manos->texto("lblNumDecla"), u"1 aitorpen hautatu d(ir)a"_s);
    }
};

QTEST_MAIN(TstFrmDecResumen)
#include "tst_frmdecresumen.moc"
