#include "core/CEntrada.h"
#include "declarants/cDecResumen.h"
#include "printing/FrmImOf.h"
#include "support/DeclaracionesPrueba.h"
#include "widgets/Ficheros.h"
#include "widgets/Mensajes.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDate>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

/// The print options as a user meets them.
class tst_impreso_pantalla : public QObject
{
    Q_OBJECT

private:
    template <class T> static T *control(const FrmImOf &pantalla, const char *nombre)
    {
        auto *hallado = pantalla.findChild<T *>(QString::fromLatin1(nombre));
        if (!hallado)
            qFatal("no control %s", nombre);
        return hallado;
    }
    static QAbstractButton *boton(const FrmImOf &pantalla, const char *nombre)
    {
        return control<QAbstractButton>(pantalla, nombre);
    }
    /// Reads and closes every message box from now on.
    void leerMensajes()
    {
        m_mensajes.clear();
        mensajes::observar([this](QMessageBox &caja) {
            m_mensajes << caja.windowTitle() + u"|"_qs + caja.text();
            QTimer::singleShot(0, &caja, [&caja] { caja.button(QMessageBox::Ok)->click(); });
        });
    }

    QStringList m_mensajes;

private Q_SLOTS:
    void cleanup() { mensajes::observar({}), ficheros::observar({}); }
    void alCargar_data();
    void alCargar();
    void tiposYCopias();
    void sinImpresora();
    void fechaMala();
    void cerrar_data();
    void cerrar();
    void cambioDeIdioma();
    void vistaPrevia();
    void guardarPdf_data();
    void guardarPdf();
};

void tst_impreso_pantalla::alCargar_data()
{
    QTest::addColumn<QString>("idioma");
    QTest::addColumn<QString>("formato");
    QTest::addColumn<QStringList>("textos");
    QTest::newRow("C") << u"C"_qs << u"dd/MM/yyyy"_qs
                       << QStringList{u"Imprimir"_qs,
                                      u"Tipo de impreso"_qs,
                                      u"Oficial"_qs,
                                      u"Borrador"_qs,
                                      u"Destinatario"_qs,
                                      u"Copia interesado"_qs,
                                      u"Copia administración"_qs,
                                      u"Fecha de presentación"_qs,
                                      u"&Opciones impresora"_qs,
                                      u"&Aceptar"_qs,
                                      u"&Cancelar"_qs};
    QTest::newRow("E") << u"E"_qs << u"yyyy/MM/dd"_qs
                       << QStringList{u"Inprimatu"_qs,
                                      u"Inprimaki mota"_qs,
                                      u"Ofiziala"_qs,
                                      u"Zirriborroa"_qs,
                                      u"Hartzailea"_qs,
                                      u"Interesatuaren kopia"_qs,
                                      u"Administrazioaren kopia"_qs,
                                      u"Aurkezpen data"_qs,
                                      u"&Inprimagailuaren aukerak"_qs,
                                      u"A&dos"_qs,
                                      u"U&tzi"_qs};
}

void tst_impreso_pantalla::alCargar()
{
    QFETCH(QString, idioma);
    QFETCH(QString, formato);
    QFETCH(QStringList, textos);
    const Entorno entorno(idioma);
    const qint32 csde = pedirImpresion(u"430"_qs);
    unico::la<cImOf>().PedirBorrador();
    const FrmImOf pantalla;
    QCOMPARE(
        (QStringList{
            pantalla.windowTitle(), control<QGroupBox>(pantalla, "frameTipoImpreso")->title(),
            boton(pantalla, "optTipoImpreso0")->text(), boton(pantalla, "optTipoImpreso1")->text(),
            control<QGroupBox>(pantalla, "fraDestinatario")->title(),
            boton(pantalla, "chkCopiaInteresado")->text(),
            boton(pantalla, "chkCopiaAdministracion")->text(),
            control<QGroupBox>(pantalla, "fraFechaDePresentacion")->title(),
            boton(pantalla, "btnOpcionesImpresora")->text(), boton(pantalla, "btnAceptar")->text(),
            boton(pantalla, "btnCancelar")->text()}),
        textos);
    QCOMPARE(control<QLineEdit>(pantalla, "txtFechaPresentacion")->text(),
             QDate::currentDate().toString(formato));
    QCOMPARE(unico::la<cDatos430>().CSDE(), csde);
    // the request starts afresh
    QCOMPARE(unico::la<cImOf>().TIPOIMP(), u"O"_qs);
    QVERIFY(boton(pantalla, "optTipoImpreso0")->isChecked());
    QVERIFY(boton(pantalla, "chkCopiaInteresado")->isChecked());
    QVERIFY(boton(pantalla, "chkCopiaAdministracion")->isChecked());
}

void tst_impreso_pantalla::tiposYCopias()
{
    const Entorno entorno;
    pedirImpresion(u"480"_qs);
    FrmImOf pantalla;
    pantalla.show();
    auto *interesado = boton(pantalla, "chkCopiaInteresado");
    auto *administracion = boton(pantalla, "chkCopiaAdministracion");
    const auto sePuedeImprimir = [&] {
        const bool puede = boton(pantalla, "btnAceptar")->isEnabled();
        return puede == boton(pantalla, "PicAce")->isEnabled() && puede;
    };

    boton(pantalla, "optTipoImpreso1")->click();
    QCOMPARE(unico::la<cImOf>().TIPOIMP(), u"B"_qs);
    QCOMPARE(unico::la<cImOf>().COPIAADM() + unico::la<cImOf>().COPIAINT(), QString());
    QVERIFY(!interesado->isChecked() && !interesado->isEnabled());
    QVERIFY(!administracion->isChecked() && !administracion->isEnabled());
    QVERIFY(sePuedeImprimir());

    boton(pantalla, "optTipoImpreso0")->click();
    QVERIFY(interesado->isChecked() && interesado->isEnabled() && administracion->isChecked());
    interesado->click();
    QCOMPARE(unico::la<cImOf>().COPIAINT(), QString());
    QVERIFY(sePuedeImprimir());
    QVERIFY(!boton(pantalla, "chkUnPdf")->isEnabled());
    administracion->click();
    QVERIFY(!boton(pantalla, "btnAceptar")->isEnabled());
    QVERIFY(!boton(pantalla, "PicAce")->isEnabled());
    QVERIFY(!boton(pantalla, "btnGuardarPdf")->isEnabled());
    interesado->click();
    QCOMPARE(unico::la<cImOf>().COPIAINT(), u"X"_qs);
    QVERIFY(sePuedeImprimir());
}

void tst_impreso_pantalla::sinImpresora()
{
    if (SalidaImpresora::hayImpresoras())
        QSKIP("a printer is installed");
    const Entorno entorno(u"E"_qs);
    pedirImpresion(u"430"_qs);
    FrmImOf pantalla;
    pantalla.show();
    leerMensajes();
    boton(pantalla, "PicAce")->click();
    QCOMPARE(m_mensajes,
             QStringList{u"Inprimatu|Ezin da inprimatu. Ez dago inprimagailurik instalatuta"_qs});
    QVERIFY(pantalla.isVisible());
}

void tst_impreso_pantalla::fechaMala()
{
    const Entorno entorno;
    pedirImpresion(u"430"_qs);
    FrmImOf pantalla;
    pantalla.show();
    leerMensajes();
    auto *fecha = control<QLineEdit>(pantalla, "txtFechaPresentacion");
    const QString titulo = u"Error en la Introducción de Datos|"_qs;
    fecha->setText(u"31/12/2001"_qs);
    boton(pantalla, "btnGuardarPdf")->click();
    fecha->setText(u"29/02/2023"_qs);
    boton(pantalla, "btnVistaPrevia")->click();
    QCOMPARE(
        m_mensajes,
        (QStringList{titulo + u"La Fecha de presentación no puede ser anterior al 01/01/2002"_qs,
                     titulo + u"La Fecha de presentación introducida no es correcta"_qs}));
    QVERIFY(pantalla.isVisible());
    QCOMPARE(unico::la<cImOf>().FECHAPRE(), 20260131);
}

void tst_impreso_pantalla::cerrar_data()
{
    QTest::addColumn<int>("manera");
    QTest::newRow("btnCancelar") << 0;
    QTest::newRow("Piccan") << 1;
    QTest::newRow("Escape") << 2;
    QTest::newRow("frame") << 3;
}

void tst_impreso_pantalla::cerrar()
{
    QFETCH(int, manera);
    const Entorno entorno;
    pedirImpresion(u"430"_qs);
    unico::la<cDecResumen>().ENTRADA(u"A"_qs);
    FrmImOf pantalla;
    pantalla.show();
    const QSignalSpy pedidas(&pantalla, &PantallaBase::mostrar);
    if (manera == 0)
        boton(pantalla, "btnCancelar")->click();
    else if (manera == 1)
        boton(pantalla, "Piccan")->click();
    else if (manera == 2)
        QTest::keyClick(&pantalla, Qt::Key_Escape);
    else
        pantalla.close();
    QVERIFY(!pantalla.isVisible());
    QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_qs);
    QCOMPARE(pedidas.size(), 1);
    QCOMPARE(pedidas[0][0].value<Pantalla>(), Pantalla::Resumen);
}

void tst_impreso_pantalla::cambioDeIdioma()
{
    const Entorno entorno;
    pedirImpresion(u"430"_qs);
    FrmImOf pantalla;
    control<QLineEdit>(pantalla, "txtFechaPresentacion")->setText(u"29/02/2024"_qs);
    unico::la<CEntrada>().IDI(u"E"_qs);
    QEvent evento(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&pantalla, &evento);
    QCOMPARE(pantalla.windowTitle(), u"Inprimatu"_qs);
    QCOMPARE(control<QLineEdit>(pantalla, "txtFechaPresentacion")->text(), u"2024/02/29"_qs);
}

void tst_impreso_pantalla::vistaPrevia()
{
    const Entorno entorno;
    pedirImpresion(u"480"_qs);
    FrmImOf pantalla;
    pantalla.show();
    int paginas = 0;
    QStringList visibles;
    QTimer::singleShot(0, &pantalla, [&] {
        auto *dialogo = QApplication::activeModalWidget();
        paginas = dialogo->findChild<QPrintPreviewWidget *>()->pageCount();
        for (const QAction *accion : dialogo->findChildren<QAction *>())
            if (accion->isVisible() && !accion->text().isEmpty())
                visibles << accion->text();
        dialogo->close();
    });
    boton(pantalla, "btnVistaPrevia")->click();
    QCOMPARE(paginas, 2);
    QVERIFY(visibles.contains(u"Zoom in"));
    QVERIFY(!visibles.contains(u"Print"));
    QVERIFY(pantalla.isVisible());
}

void tst_impreso_pantalla::guardarPdf_data()
{
    QTest::addColumn<bool>("unoSolo");
    QTest::addColumn<QStringList>("ficheros");
    QTest::newRow("one") << true << QStringList{u"x_AD-IT.pdf"_qs};
    QTest::newRow("each") << false << QStringList{u"x_AD.pdf"_qs, u"x_IT.pdf"_qs};
}

void tst_impreso_pantalla::guardarPdf()
{
    QFETCH(bool, unoSolo);
    QFETCH(QStringList, ficheros);
    const Entorno entorno;
    pedirImpresion(u"430"_qs);
    QDir carpeta(entorno.ruta(u"salida"_qs));
    QVERIFY(carpeta.mkpath(u"."_qs));
    FrmImOf pantalla;
    pantalla.show();
    control<QCheckBox>(pantalla, "chkUnPdf")->setChecked(unoSolo);
    leerMensajes();
    QStringList propuestos;
    ficheros::observar([&](QFileDialog &dialogo) {
        propuestos << QFileInfo(dialogo.selectedFiles().value(0)).fileName();
        dialogo.selectFile(carpeta.filePath(u"x_AD-IT.pdf"_qs));
        QTimer::singleShot(0, &dialogo, [&dialogo] { static_cast<QDialog &>(dialogo).accept(); });
    });
    boton(pantalla, "btnGuardarPdf")->click();
    QCOMPARE(propuestos, QStringList{u"430_2026-01_A58818501_AD-IT.pdf"_qs});
    QCOMPARE(carpeta.entryList(QDir::Files), ficheros);
    QCOMPARE(m_mensajes.size(), 1);
    QVERIFY(pantalla.isVisible());
}

QTEST_MAIN(tst_impreso_pantalla)
#include "tst_impreso_pantalla.moc"
