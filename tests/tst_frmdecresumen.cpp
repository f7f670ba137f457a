#include "core/CEntrada.h"
#include "core/Textos.h"
#include "declarants/FrmDecResumen.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/cImOf.h"
#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>

/// The summary of one declarant with the 430 returns of the months given, of 2025.
struct Resumen
{
    explicit Resumen(const QList<int> &meses = {}, bool anual = false)
    {
        csco = Entorno::altaDeclarante();
        for (const int mes : meses)
            claves += Entorno::altaDeclaracion(csco, 2025, static_cast<quint8>(mes));
        if (anual)
            claves += Entorno::altaDeclaracion(csco, 2025, 12, u"480"_qs);
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.TomarDeclarante(csco, u"12345678Z"_qs, u"SEGUROS UNO"_qs);
        cabecera.ENTRADA(u"A"_qs);
        cabecera.CSDE(99);
        abrir();
    }
    void abrir()
    {
        pantalla = std::make_unique<FrmDecResumen>();
        manos = std::make_unique<Manos>(*pantalla);
        QObject::connect(pantalla.get(), &PantallaBase::mostrar, pantalla.get(),
                         [this](Pantalla p) { siguiente = p; });
        pantalla->resize(pantalla->sizeHint());
        pantalla->show();
        QApplication::setActiveWindow(pantalla.get());
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

    Entorno entorno;
    ConductorMensajes mensajes;
    qint32 csco = 0;
    QList<qint32> claves;
    std::unique_ptr<FrmDecResumen> pantalla;
    std::unique_ptr<Manos> manos;
    std::optional<Pantalla> siguiente;
};

static cDecResumen &cabecera()
{
    return unico::la<cDecResumen>();
}

class tst_FrmDecResumen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lista();
    void propuesta_data();
    void propuesta();
    void crear_data();
    void crear();
    void otroEjercicioVacia();
    void mensajesDeCabecera_data();
    void mensajesDeCabecera();
    void noEstaEnLaLista_data();
    void noEstaEnLaLista();
    void tabuladorSaleDeLaLista();
    void abandonar_data();
    void abandonar();
    void abrirDeclaracion_data();
    void abrirDeclaracion();
    void imprimirDeshaceLaPropuesta();
    void borrar();
    void volver();
    void declarante();
    void idioma();
};

void tst_FrmDecResumen::lista()
{
    Resumen r({1, 12}, true);
    QCOMPARE(cabecera().CSDE(), 0);
    QCOMPARE(cabecera().MODO(), u"L"_qs);
    QCOMPARE(r.manos->texto("lblnombre"), u"SEGUROS UNO"_qs);
    QVERIFY(r.manos->texto("lbldni").contains(u"12345678Z"_qs));
    QCOMPARE(r.manos->texto("lblNumDecla"), u"3 declaraciones seleccionadas"_qs);
    QCOMPARE(r.grid()->model()->columnCount(), 8);
    for (const int oculta : {0, 2, 5, 7})
        QVERIFY(r.grid()->isColumnHidden(oculta));
    QCOMPARE(r.celda(0, 3), u"ENERO"_qs);
    QCOMPARE(r.celda(2, 3), u"ANUAL"_qs);
    QCOMPARE(r.celda(2, 4), u"480"_qs);
    QCOMPARE(r.celda(0, 6), u"0,00"_qs);
    QCOMPARE(r.celda(1, 7), u"12"_qs);
    for (const char *boton : {"cmdDatos", "cmdImprimir", "cmdEliminar"})
        QVERIFY(!r.manos->control(boton)->isEnabled());
    QTest::keyClick(r.grid(), Qt::Key_Down);
    QCOMPARE(cabecera().CSDE(), r.claves[0]);
    for (const char *boton : {"cmdDatos", "cmdImprimir", "cmdEliminar"})
        QVERIFY(r.manos->control(boton)->isEnabled());
}

void tst_FrmDecResumen::propuesta_data()
{
    QTest::addColumn<QList<int>>("meses");
    QTest::addColumn<bool>("anual");
    QTest::addColumn<QString>("esperada");
    QTest::newRow("none") << QList<int>{} << false << u"//"_qs;
    QTest::newRow("after January") << QList<int>{1} << false << u"2025/430/FEBRERO"_qs;
    QTest::newRow("after December") << QList<int>{12} << false << u"2025/480/ANUAL"_qs;
    QTest::newRow("after the year") << QList<int>{12} << true << u"2026/430/ENERO"_qs;
}

void tst_FrmDecResumen::propuesta()
{
    QFETCH(QList<int>, meses);
    QFETCH(bool, anual);
    QFETCH(QString, esperada);
    Resumen r(meses, anual);
    QVERIFY(!r.manos->control("fraNueva")->isVisible());
    r.manos->pulsar("ImgNueva");
    QVERIFY(r.manos->control("fraNueva")->isVisible());
    QCOMPARE(cabecera().MODO(), u"N"_qs);
    QCOMPARE(r.propuesta(), esperada);
    QCOMPARE(r.manos->foco(), u"txtejer"_qs);
}

void tst_FrmDecResumen::crear_data()
{
    QTest::addColumn<QString>("modelo");
    QTest::addColumn<QString>("periodo");
    QTest::newRow("430") << u"430"_qs << u"MARZO"_qs;
    QTest::newRow("480") << u"480"_qs << u"ANUAL"_qs;
}

/// By hand, from an empty proposal; the last entry is committed by the press itself.
void tst_FrmDecResumen::crear()
{
    QFETCH(QString, modelo);
    QFETCH(QString, periodo);
    Resumen r;
    r.manos->pulsar("ImgNueva");
    QTest::keyClicks(r.manos->control("txtejer"), u"2026"_qs);
    r.elegirEntrada("cmbmodelo", modelo);
    r.manos->escribir("cmbperiodo", periodo.toLower());
    QCOMPARE(r.combo("cmbperiodo")->currentText(), periodo);
    r.manos->tecla(Qt::Key_Return);
    QCOMPARE(r.manos->foco(), u"ImgNueva"_qs);
    r.manos->tecla(Qt::Key_Return);
    QCOMPARE(cabecera().EJERCICIO(), 2026);
    const bool anual = modelo == u"480";
    QCOMPARE(int(cabecera().PERIODO()), anual ? 12 : 3);
    QCOMPARE(int(cabecera().TIPOLOGIA()), anual ? 2 : 1);
    QCOMPARE(r.siguiente.value_or(Pantalla::Ninguna),
             anual ? Pantalla::Datos480a : Pantalla::Datos430);
    QCOMPARE(anual ? unico::la<cDatos480>().MODO() : unico::la<cDatos430>().MODO(), u"A"_qs);
    QVERIFY(!r.pantalla->isVisible());
}

void tst_FrmDecResumen::otroEjercicioVacia()
{
    Resumen r({1});
    r.manos->pulsar("ImgNueva");
    r.manos->escribir("txtejer", u"2o24"_qs);
    QCOMPARE(r.manos->texto("txtejer"), u"224"_qs);
    r.manos->escribir("txtejer", u"2025"_qs);
    r.manos->tecla(Qt::Key_Tab);
    QCOMPARE(r.propuesta(), u"2025/430/FEBRERO"_qs);
    r.manos->escribir("txtejer", u"2024"_qs);
    r.manos->control("ImgNueva")->setFocus();
    QCOMPARE(r.propuesta(), u"2024//"_qs);
    QCOMPARE(cabecera().EJERCICIO(), 2024);
    QCOMPARE(cabecera().MODELO(), QString());
}

void tst_FrmDecResumen::mensajesDeCabecera_data()
{
    QTest::addColumn<QString>("ejercicio");
    QTest::addColumn<QString>("modelo");
    QTest::addColumn<QString>("periodo");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("foco");
    const QString nada;
    QTest::newRow("exercise") << nada << nada << nada
                              << u"La casilla Ejercicio debe tener algún valor"_qs << u"txtejer"_qs;
    QTest::newRow("period") << u"2025"_qs << u"430"_qs << nada
                            << u"La casilla Periodo debe tener algún valor"_qs << u"cmbperiodo"_qs;
    QTest::newRow("bounds") << u"2031"_qs << u"430"_qs << u"MAYO"_qs
                            << u"El ejercicio-periodo no puede ser anterior al 2002-01\n ni "
                               "posterior al 2030-12"_qs
                            << u"txtejer"_qs;
    QTest::newRow("stored") << u"2025"_qs << u"430"_qs << u"ENERO"_qs
                            << u"No se puede dar de alta la nueva declaración. Ya existe una "
                               "declaración con ese ejercicio-periodo"_qs
                            << u"txtejer"_qs;
}

void tst_FrmDecResumen::mensajesDeCabecera()
{
    QFETCH(QString, ejercicio);
    QFETCH(QString, modelo);
    QFETCH(QString, periodo);
    QFETCH(QString, texto);
    QFETCH(QString, foco);
    Resumen r({1});
    r.manos->pulsar("ImgNueva");
    r.manos->escribir("txtejer", u"1"_qs);
    r.manos->tecla(Qt::Key_Return);
    r.manos->escribir("txtejer", ejercicio);
    if (!modelo.isEmpty())
        r.elegirEntrada("cmbmodelo", modelo);
    if (!periodo.isEmpty())
        r.elegirEntrada("cmbperiodo", periodo);
    r.mensajes.responder(QMessageBox::Ok);
    r.manos->pulsar("ImgNueva");
    const auto vistos = r.mensajes.tomar();
    QCOMPARE(vistos.size(), 1);
    QCOMPARE(vistos[0].texto, texto);
    QCOMPARE(vistos[0].titulo, u"Declarante - Declaraciones"_qs);
    QCOMPARE(r.manos->foco(), foco);
    QVERIFY(r.pantalla->isVisible());
    QVERIFY(!r.siguiente);
}

void tst_FrmDecResumen::noEstaEnLaLista_data()
{
    QTest::addColumn<QString>("lista");
    QTest::addColumn<QString>("texto");
    QTest::newRow("model") << u"cmbmodelo"_qs << msj(Msj::ErrorModeloLista);
    QTest::newRow("period") << u"cmbperiodo"_qs << msj(Msj::ErrorPeriodoLista);
}

void tst_FrmDecResumen::noEstaEnLaLista()
{
    QFETCH(QString, lista);
    QFETCH(QString, texto);
    Resumen r({1});
    r.manos->pulsar("ImgNueva");
    auto *combo = r.combo(lista.toLatin1());
    combo->setFocus(Qt::PopupFocusReason);
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, u"x9"_qs);
    r.mensajes.responder(QMessageBox::Ok);
    QTest::keyClick(combo, Qt::Key_Tab);
    const auto vistos = r.mensajes.tomar();
    QCOMPARE(vistos.size(), 1);
    QCOMPARE(vistos[0].texto, texto);
    QCOMPARE(vistos[0].titulo, u"Error en la Introducción de Datos"_qs);
    QTRY_COMPARE(r.manos->foco(), lista);
    QCOMPARE(combo->currentText(), u"X9"_qs);
    QCOMPARE(cabecera().MODELO(), u"430"_qs);
    QCOMPARE(int(cabecera().PERIODO()), 2);
}

void tst_FrmDecResumen::tabuladorSaleDeLaLista()
{
    Resumen r({1});
    r.manos->pulsar("ImgNueva");
    r.manos->tecla(Qt::Key_Tab);
    auto *modelo = r.combo("cmbmodelo");
    QTRY_VERIFY(modelo->view()->isVisible());
    QTest::keyClick(modelo->view(), Qt::Key_Down);
    QTest::keyClick(modelo->view(), Qt::Key_Tab);
    QVERIFY(!modelo->view()->isVisible());
    QCOMPARE(r.manos->foco(), u"cmbperiodo"_qs);
    QCOMPARE(r.propuesta(), u"2025/480/ANUAL"_qs);
    QCOMPARE(int(cabecera().PERIODO()), 12);
    r.elegirEntrada("cmbmodelo", u"430"_qs);
    QCOMPARE(r.propuesta(), u"2025/430/"_qs);
}

void tst_FrmDecResumen::abandonar_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Escape") << true;
    QTest::newRow("button") << false;
}

void tst_FrmDecResumen::abandonar()
{
    QFETCH(bool, escape);
    Resumen r({1});
    r.manos->pulsar("ImgNueva");
    if (escape)
        r.manos->tecla(Qt::Key_Escape);
    else
        r.manos->pulsar("cmdAbandonar");
    QVERIFY(!r.manos->control("fraNueva")->isVisible());
    QCOMPARE(cabecera().MODO(), u"L"_qs);
    QCOMPARE(cabecera().EJERCICIO(), 0);
    QCOMPARE(r.manos->foco(), u"flxDeclaraciones"_qs);
}

void tst_FrmDecResumen::abrirDeclaracion_data()
{
    QTest::addColumn<int>("fila");
    QTest::addColumn<QString>("manera");
    QTest::newRow("430, button") << 0 << u"button"_qs;
    QTest::newRow("430, double click") << 0 << u"double click"_qs;
    QTest::newRow("480, Enter") << 1 << u"Enter"_qs;
}

void tst_FrmDecResumen::abrirDeclaracion()
{
    QFETCH(int, fila);
    QFETCH(QString, manera);
    Resumen r({12}, true);
    r.elegir(fila);
    const QPoint lugar = r.grid()->visualRect(r.grid()->model()->index(fila, 1)).center();
    if (manera == u"button")
        r.manos->pulsar("cmdDatos");
    else if (manera == u"Enter")
        QTest::keyClick(r.grid(), Qt::Key_Return);
    else
        QTest::mouseDClick(r.grid()->viewport(), Qt::LeftButton, {}, lugar);
    QCOMPARE(r.siguiente.value_or(Pantalla::Ninguna),
             fila == 0 ? Pantalla::Datos430 : Pantalla::Datos480a);
    QCOMPARE(cabecera().EJERCICIO(), 2025);
    QCOMPARE(int(cabecera().PERIODO()), 12);
    QCOMPARE(int(cabecera().TIPOLOGIA()), fila + 1);
    QCOMPARE(cabecera().CSDE(), r.claves[fila]);
    if (fila == 0) {
        QCOMPARE(unico::la<cDatos430>().MODO(), u"C"_qs);
        QCOMPARE(unico::la<cDatos430>().CSDE(), r.claves[0]);
    } else {
        QCOMPARE(unico::la<cDatos480>().ENTRADA(), u"A"_qs);
        QCOMPARE(unico::la<cDatos480>().CSDE(), r.claves[1]);
    }
}

/// The header is one: what is printed must not end in the new return that was being prepared.
void tst_FrmDecResumen::imprimirDeshaceLaPropuesta()
{
    Resumen r({1, 2});
    r.elegir(0);
    r.manos->pulsar("ImgNueva");
    r.manos->pulsar("cmdImprimir");
    QCOMPARE(r.siguiente.value_or(Pantalla::Ninguna), Pantalla::Impresion);
    QVERIFY(r.pantalla->isVisible());
    QVERIFY(!r.manos->control("fraNueva")->isVisible());
    QCOMPARE(int(cabecera().PERIODO()), 1);
    const auto &peticion = unico::la<cImOf>();
    QCOMPARE(peticion.CSCO(), r.csco);
    QCOMPARE(peticion.CSDE(), r.claves[0]);
    QCOMPARE(peticion.MODELO(), u"430"_qs);
}

void tst_FrmDecResumen::borrar()
{
    Resumen r({1, 2});
    QSignalSpy cambios(r.pantalla.get(), &PantallaBase::datosCambiados);
    r.elegir(1);
    r.mensajes.responder(QMessageBox::No);
    r.manos->pulsar("cmdEliminar");
    const auto vistos = r.mensajes.tomar();
    QCOMPARE(vistos.size(), 1);
    QCOMPARE(vistos[0].titulo, u"Borrado de la declaración"_qs);
    QCOMPARE(vistos[0].texto,
             u"¿Esta seguro que desea eliminar la declaración: 2025 - FEBRERO ?"_qs);
    QCOMPARE(vistos[0].porDefecto, QMessageBox::No);
    QCOMPARE(r.grid()->model()->rowCount(), 2);

    r.mensajes.responder(QMessageBox::Yes);
    r.manos->pulsar("cmdEliminar");
    QCOMPARE(r.grid()->model()->rowCount(), 1);
    QCOMPARE(r.manos->foco(), u"flxDeclaraciones"_qs);
    QVERIFY(!r.manos->control("cmdEliminar")->isEnabled());
    QCOMPARE(cambios.count(), 1);
    r.elegir(0);
    r.mensajes.responder(QMessageBox::Yes);
    r.manos->pulsar("cmdEliminar");
    QCOMPARE(r.manos->foco(), u"cmdDeclarante"_qs);
    QCOMPARE(r.manos->texto("lblNumDecla"), u"No existen declaraciones"_qs);
    unico::la<cDecDatos>().CargarDeclarante(r.csco);
    QCOMPARE(unico::la<cDecDatos>().NUM430(), 0.0);
}

/// Back from an entry screen, the return is selected again.
void tst_FrmDecResumen::volver()
{
    Resumen r({1, 2, 3});
    cabecera().ENTRADA(u"P"_qs);
    cabecera().CSDE(r.claves[1]);
    r.abrir();
    QCOMPARE(cabecera().CSDE(), r.claves[1]);
    QCOMPARE(r.grid()->currentIndex().row(), 1);
    QVERIFY(r.manos->control("cmdDatos")->isEnabled());
}

void tst_FrmDecResumen::declarante()
{
    Resumen r({1});
    r.manos->pulsar("cmdDeclarante");
    QCOMPARE(r.siguiente.value_or(Pantalla::Ninguna), Pantalla::DatosDeclarante);
    const auto &datos = unico::la<cDecDatos>();
    QCOMPARE(datos.MODO(), u"C"_qs);
    QCOMPARE(datos.CSCO(), r.csco);
    QCOMPARE(datos.NOMBRE(), u"SEGUROS UNO"_qs);
    QCOMPARE(datos.NUM430(), 1.0);
}

void tst_FrmDecResumen::idioma()
{
    Resumen r({1});
    r.elegir(0);
    r.manos->pulsar("ImgNueva");
    unico::la<CEntrada>().IDI(u"E"_qs);
    QEvent cambio(QEvent::LanguageChange);
    QApplication::sendEvent(r.pantalla.get(), &cambio);
    QCOMPARE(r.pantalla->windowTitle(), u"Aitortzailea - Aitorpenak"_qs);
    QCOMPARE(r.celda(0, 3), u"URTARRILA"_qs);
    QCOMPARE(r.propuesta(), u"2025/430/OTSAILA"_qs);
    QCOMPARE(r.grid()->currentIndex().row(), 0);
    QCOMPARE(r.manos->texto("lblNumDecla"), u"1 aitorpen hautatu d(ir)a"_qs);
}

QTEST_MAIN(tst_FrmDecResumen)
#include "tst_frmdecresumen.moc"
