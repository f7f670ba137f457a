#include "declarations/cDatos430.h"
#include "printing/FrmImOf.h"
#include "support/DeclaracionesPrueba.h"
#include "support/LineasPrueba.h"
#include "support/PantallaAbierta.h"
#include "widgets/Ficheros.h"
#include "widgets/Navegador.h"

#include <QComboBox>
#include <QDate>
#include <QFileDialog>
#include <QPrintPreviewWidget>

/// The print options for a stored return.
struct Opciones : PantallaAbierta<FrmImOf>
{
    explicit Opciones(const QString &modelo, const QString &idioma = u"C"_s)
    {
        unico::la<CEntrada>().IDI(idioma);
        csde = pedirImpresion(modelo);
        unico::la<cDecResumen>().ENTRADA(u"A"_s);
        unico::la<cImOf>().PedirBorrador();
        abrir();
    }
    /// The marked choices, and the controls that cannot be used.
    QString marcas() const
    {
        QStringList lista;
        for (const char *nombre :
             {"optTipoImpreso0", "optTipoImpreso1", "chkCopiaInteresado", "chkCopiaAdministracion",
              "chkUnPdf", "btnAceptar", "PicAce", "btnGuardarPdf"}) {
            const auto *uno = manos->control<QAbstractButton>(nombre);
            if (uno->isChecked() || !uno->isEnabled())
                lista += (uno->isEnabled() ? QString() : u"-"_s) + uno->objectName();
        }
        return lista.join(u' ');
    }
    static cImOf &peticion() { return unico::la<cImOf>(); }
    QString fecha() const { return manos->texto("txtFechaPresentacion"); }
    /// The captions of the whole screen.

    qint32 csde = 0;
};

/// The print options as a user meets them.
class TstImpresoPantalla : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ficheros::observar({}); }

    void alCargarYCambioDeIdioma()
    {
        Opciones o(u"430"_s);
        QCOMPARE(o.fecha(), QDate::currentDate().toString(u"dd/MM/yyyy"_s));
        QCOMPARE(unico::la<cDatos430>().CSDE(), o.csde);
        // the request starts afresh
        QCOMPARE(o.peticion().TIPOIMP(), u"O"_s);
        QCOMPARE(o.marcas(),
                 u"optTipoImpreso0 chkCopiaInteresado chkCopiaAdministracion chkUnPdf"_s);
        QCOMPARE(o.manos->texto("lblDeclaracion"),
                 u"430 ENERO 2026\nA58818501 - ASEGURADORA UNO, S.A."_s);
        if (!SalidaImpresora::hayImpresoras())
            QCOMPARE(o.manos->texto("lblImpresora"), u"Impresora: ninguna"_s);
        o.manos->escribir("txtFechaPresentacion", u"29/02/2024"_s);
        Entorno::pasarAEuskera(*o.pantalla);
        QCOMPARE(o.fecha(), u"2024/02/29"_s);
        QVERIFY(o.manos->texto("lblDeclaracion").startsWith(u"430 URTARRILA 2026"_s));
        QCOMPARE(Opciones(u"430"_s, u"E"_s).fecha(),
                 QDate::currentDate().toString(u"yyyy/MM/dd"_s));
    }

    void tiposYCopias()
    {
        Opciones o(u"480"_s);
        QCOMPARE(o.manos->texto("lblDeclaracion").section(u'\n', 0, 0), u"480 ANUAL 2026"_s);
        // what is pressed: what is marked or barred then; kind and copies asked for
        for (const QString &caso :
             u"optTipoImpreso1:optTipoImpreso1 -chkCopiaInteresado -chkCopiaAdministracion "
             u"-chkUnPdf:B,"
             "optTipoImpreso0:optTipoImpreso0 chkCopiaInteresado chkCopiaAdministracion "
             "chkUnPdf:OAI,"
             "chkCopiaInteresado:optTipoImpreso0 chkCopiaAdministracion -chkUnPdf:OA,"
             "chkCopiaAdministracion:optTipoImpreso0 -chkUnPdf -btnAceptar -PicAce "
             "-btnGuardarPdf:O,"
             "chkCopiaInteresado:optTipoImpreso0 chkCopiaInteresado -chkUnPdf:OI"_s.split(u',')) {
            const QStringList partes = caso.split(u':');
            o.manos->pulsar(partes[0].toLatin1().constData());
            QCOMPARE(o.marcas(), partes[1]);
            QCOMPARE(o.peticion().TIPOIMP() + o.peticion().COPIAADM().replace(u'X', u'A')
                         + o.peticion().COPIAINT().replace(u'X', u'I'),
                     partes[2]);
        }
    }

    void sinImpresora()
    {
        if (SalidaImpresora::hayImpresoras())
            QSKIP("a printer is installed");
        Opciones o(u"430"_s, u"E"_s);
        QCOMPARE(o.aviso("PicAce"), u"Ezin da inprimatu. Ez dago inprimagailurik instalatuta"_s);
        QVERIFY(o.pantalla->isVisible());
    }

    void fechaMala()
    {
        Opciones o(u"430"_s);
        for (const char *boton : {"btnGuardarPdf", "btnVistaPrevia"}) {
            o.manos->escribir("txtFechaPresentacion", u"31/12/2001"_s);
            QCOMPARE(o.aviso(boton),
                     u"La Fecha de presentación no puede ser anterior al 01/01/2002"_s);
            QVERIFY(o.pantalla->isVisible());
            QCOMPARE(o.peticion().FECHAPRE(), 20260131);
        }
    }

    void cerrar()
    {
        for (const char *manera : {"btnCancelar", "Piccan", "Escape", "frame"}) {
            Opciones o(u"430"_s);
            o.salir(manera);
            QVERIFY(!o.pantalla->isVisible());
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
            QCOMPARE(o.siguiente, Pantalla::Resumen);
        }
    }

    void vistaPrevia()
    {
        Opciones o(u"480"_s);
        QStringList visibles;
        QTimer::singleShot(0, o.pantalla.get(), [&] {
            auto *dialogo = QApplication::activeModalWidget();
            const auto *vista = dialogo->findChild<QPrintPreviewWidget *>();
            for (const QAction *accion : dialogo->findChildren<QAction *>())
                if (accion->isVisible())
                    visibles << accion->text();
            dialogo->close();
            QCOMPARE(vista->pageCount(), 2);
            QCOMPARE(vista->zoomMode(), QPrintPreviewWidget::FitToWidth);
        });
        o.manos->pulsar("btnVistaPrevia");
        QVERIFY(visibles.contains(u"Zoom in") && !visibles.contains(u"Print"));
        QVERIFY(o.pantalla->isVisible());
    }

    /// Saves as `elegido` in the real file dialogue and answers to what is told; what was proposed.
    static QString guardarComo(Opciones &o, const QString &elegido,
                               QMessageBox::StandardButton respuesta = QMessageBox::Ok)
    {
        QString propuesto;
        ficheros::observar([&](QFileDialog &dialogo) {
            propuesto = dialogo.selectedFiles().value(0);
            dialogo.selectFile(elegido);
            QTimer::singleShot(0, &dialogo,
                               [&dialogo] { static_cast<QDialog &>(dialogo).accept(); });
        });
        o.responderYPulsar(respuesta, "btnGuardarPdf");
        return propuesto;
    }

    void guardarPdf()
    {
        QString anterior;
        const QTemporaryDir salida;
        for (const bool unoSolo : {true, false}) {
            Opciones o(u"430"_s);
            QDir carpeta(salida.filePath(unoSolo ? u"uno"_s : u"dos"_s));
            QVERIFY(carpeta.mkpath(u"."_s));
            o.manos->control<QAbstractButton>("chkUnPdf")->setChecked(unoSolo);
            const QString propuesto = guardarComo(o, carpeta.filePath(u"x_AD-IT.pdf"_s));
            QCOMPARE(QFileInfo(propuesto).fileName(), u"430_2026-01_A58818501_AD-IT.pdf"_s);
            // the folder of the session's last one is proposed
            if (!anterior.isEmpty())
                QCOMPARE(QFileInfo(propuesto).path(), anterior);
            anterior = carpeta.path();
            QCOMPARE(carpeta.entryList(QDir::Files).join(u' '),
                     unoSolo ? u"x_AD-IT.pdf"_s : u"x_AD.pdf x_IT.pdf"_s);
            if (unoSolo)
                QVERIFY(lineas::leer(carpeta.filePath(u"x_AD-IT.pdf"_s)).contains("/Count 2"));
            const QString dicho = o.mensajes.ficha();
            QVERIFY(dicho.startsWith(u"Information|Guardar como PDF|"));
            QVERIFY(dicho.contains(unoSolo ? u"x_AD-IT.pdf"_s : u"x_IT.pdf"_s));
            QVERIFY(!o.pantalla->isVisible());
            QCOMPARE(o.siguiente, Pantalla::Resumen);
        }
        // a copy that is there is written over only when the user says so
        const QString una = salida.filePath(u"dos/x_AD.pdf"_s);
        lineas::escribir(una, "old");
        Opciones o(u"430"_s);
        o.manos->control<QAbstractButton>("chkUnPdf")->setChecked(false);
        guardarComo(o, salida.filePath(u"dos/x_AD-IT.pdf"_s), QMessageBox::No);
        QCOMPARE(o.mensajes.texto(), u"El archivo ya existe. ¿Desea sobreescribirlo?"_s);
        QCOMPARE(lineas::leer(una), "old");
        QVERIFY(o.pantalla->isVisible());
    }

    /// What was saved can be opened, or its folder.
    void abrirLoGuardado()
    {
        QString abierto;
        navegador::sustituir([&](const QUrl &direccion) {
            abierto = direccion.toLocalFile();
            return true;
        });
        for (const auto &[boton, esperado] :
             {std::pair{QMessageBox::Open, u"salida/y.pdf"_s}, {QMessageBox::Apply, u"salida"_s}}) {
            Opciones o(u"430"_s);
            QVERIFY(QDir().mkpath(o.entorno.ruta(u"salida"_s)));
            guardarComo(o, o.entorno.ruta(u"salida/y.pdf"_s), boton);
            QCOMPARE(abierto, o.entorno.ruta(esperado));
        }
        navegador::sustituir({});
    }

    /// "Print to file" in the printer's options: two copies are two files.
    void imprimirEnFicheros()
    {
        Opciones o(u"430"_s);
        QVERIFY(QDir().mkpath(o.entorno.ruta(u"salida"_s)));
        const QString elegido = o.entorno.ruta(u"salida/z.pdf"_s);
        bool elegible = false;
        QTimer::singleShot(0, o.pantalla.get(), [&] {
            auto *dialogo = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            auto *impresoras = dialogo->findChild<QComboBox *>(u"printers"_s);
            auto *fichero = dialogo->findChild<QLineEdit *>(u"filename"_s);
            elegible = impresoras && fichero;
            if (!elegible)
                return dialogo->reject();
            impresoras->setCurrentIndex(impresoras->count() - 1);
            fichero->setText(elegido);
            dialogo->accept();
        });
        o.manos->pulsar("btnOpcionesImpresora");
        if (!elegible)
            QSKIP("the printer dialogue of this platform is another one");
        QVERIFY(o.manos->texto("lblImpresora").contains(u"z.pdf"_s));
        o.manos->escribir("txtFechaPresentacion", u"31/12/2001"_s);
        QVERIFY(o.aviso("btnAceptar").startsWith(u"La Fecha de presentación"_s));
        QVERIFY(QDir(o.entorno.ruta(u"salida"_s)).isEmpty());
        o.manos->escribir("txtFechaPresentacion", u"01/01/2002"_s);
        QVERIFY(o.aviso("btnAceptar").contains(u"z_IT.pdf"_s));
        QCOMPARE(QDir(o.entorno.ruta(u"salida"_s)).entryList(QDir::Files).join(u' '),
                 u"z_AD.pdf z_IT.pdf"_s);
        QCOMPARE(o.peticion().FECHAPRE(), 20020101);
        QVERIFY(!o.pantalla->isVisible());
    }
};

QTEST_MAIN(TstImpresoPantalla)
#include "tst_impreso_pantalla.moc"
