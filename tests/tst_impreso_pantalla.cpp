#include "core/CEntrada.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "printing/FrmImOf.h"
#include "support/DeclaracionesPrueba.h"
#include "support/PantallaAbierta.h"
#include "widgets/Ficheros.h"

#include <QAbstractButton>
#include <QAction>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QPrintPreviewWidget>

using namespace Qt::StringLiterals;

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
    QAbstractButton *boton(const char *nombre) const
    {
        return manos->control<QAbstractButton>(nombre);
    }
    QString fecha() const { return manos->texto("txtFechaPresentacion"); }
    /// The captions of the whole screen.
    QString rotulos() const
    {
        QStringList lista{pantalla->windowTitle()};
        for (const char *grupo : {"frameTipoImpreso", "fraDestinatario", "fraFechaDePresentacion"})
            lista += manos->control(grupo)->property("title").toString();
        for (const char *nombre :
             {"optTipoImpreso0", "optTipoImpreso1", "chkCopiaInteresado", "chkCopiaAdministracion",
              "btnOpcionesImpresora", "btnAceptar", "btnCancelar"})
            lista += manos->texto(nombre);
        return lista.join(u'|').remove(u'&');
    }

    qint32 csde = 0;
};

static cImOf &peticion()
{
    return unico::la<cImOf>();
}

/// The print options as a user meets them.
class TstImpresoPantalla : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ficheros::observar({}); }

    void alCargarYCambioDeIdioma()
    {
        Opciones o(u"430"_s);
        QCOMPARE(o.rotulos(),
                 u"Imprimir|Tipo de impreso|Destinatario|Fecha de presentación|Oficial|Borrador|"
                 "Copia interesado|Copia administración|Opciones impresora|Aceptar|Cancelar"_s);
        QCOMPARE(o.fecha(), QDate::currentDate().toString(u"dd/MM/yyyy"_s));
        QCOMPARE(unico::la<cDatos430>().CSDE(), o.csde);
        // the request starts afresh
        QCOMPARE(peticion().TIPOIMP(), u"O"_s);
        for (const char *marcado :
             {"optTipoImpreso0", "chkCopiaInteresado", "chkCopiaAdministracion"})
            QVERIFY2(o.boton(marcado)->isChecked(), marcado);
        o.manos->escribir("txtFechaPresentacion", u"29/02/2024"_s);
        Entorno::pasarAEuskera(*o.pantalla);
        QCOMPARE(o.rotulos(),
                 u"Inprimatu|Inprimaki mota|Hartzailea|Aurkezpen data|Ofiziala|Zirriborroa|"
                 "Interesatuaren kopia|Administrazioaren kopia|Inprimagailuaren aukerak|Ados|"
                 "Utzi"_s);
        QCOMPARE(o.fecha(), u"2024/02/29"_s);
        QCOMPARE(Opciones(u"430"_s, u"E"_s).fecha(),
                 QDate::currentDate().toString(u"yyyy/MM/dd"_s));
    }

    void tiposYCopias()
    {
        Opciones o(u"480"_s);
        auto *interesado = o.boton("chkCopiaInteresado");
        auto *administracion = o.boton("chkCopiaAdministracion");
        const auto comprobarImprimible = [&](bool puede) {
            for (const char *nombre : {"btnAceptar", "PicAce", "btnGuardarPdf"})
                QCOMPARE(o.boton(nombre)->isEnabled(), puede);
        };
        o.manos->pulsar("optTipoImpreso1");
        QCOMPARE(peticion().TIPOIMP(), u"B"_s);
        QCOMPARE(peticion().COPIAADM() + peticion().COPIAINT(), QString());
        QVERIFY(!interesado->isChecked() && !interesado->isEnabled());
        QVERIFY(!administracion->isChecked() && !administracion->isEnabled());
        comprobarImprimible(true);

        o.manos->pulsar("optTipoImpreso0");
        QVERIFY(interesado->isChecked() && interesado->isEnabled() && administracion->isChecked());
        o.manos->pulsar("chkCopiaInteresado");
        QCOMPARE(peticion().COPIAINT(), QString());
        comprobarImprimible(true);
        QVERIFY(!o.boton("chkUnPdf")->isEnabled());
        o.manos->pulsar("chkCopiaAdministracion");
        comprobarImprimible(false);
        o.manos->pulsar("chkCopiaInteresado");
        QCOMPARE(peticion().COPIAINT(), u"X"_s);
        comprobarImprimible(true);
    }

    void sinImpresora()
    {
        if (SalidaImpresora::hayImpresoras())
            QSKIP("a printer is installed");
        Opciones o(u"430"_s, u"E"_s);
        o.responderYPulsar(QMessageBox::Ok, "PicAce");
        QCOMPARE(o.mensajes.texto(), u"Ezin da inprimatu. Ez dago inprimagailurik instalatuta"_s);
        QVERIFY(o.pantalla->isVisible());
    }

    void fechaMala()
    {
        Opciones o(u"430"_s);
        o.manos->escribir("txtFechaPresentacion", u"31/12/2001"_s);
        o.responderYPulsar(QMessageBox::Ok, "btnGuardarPdf");
        QCOMPARE(o.mensajes.texto(),
                 u"La Fecha de presentación no puede ser anterior al 01/01/2002"_s);
        o.manos->escribir("txtFechaPresentacion", u"29/02/2023"_s);
        o.responderYPulsar(QMessageBox::Ok, "btnVistaPrevia");
        QCOMPARE(o.mensajes.texto(), u"La Fecha de presentación introducida no es correcta"_s);
        QVERIFY(o.pantalla->isVisible());
        QCOMPARE(peticion().FECHAPRE(), 20260131);
    }

    void cerrar()
    {
        for (const char *manera : {"btnCancelar", "Piccan", "Escape", "frame"}) {
            Opciones o(u"430"_s);
            if (qstrcmp(manera, "Escape") == 0)
                o.manos->tecla(Qt::Key_Escape);
            else if (qstrcmp(manera, "frame") == 0)
                o.pantalla->close();
            else
                o.manos->pulsar(manera);
            QVERIFY(!o.pantalla->isVisible());
            QCOMPARE(unico::la<cDecResumen>().ENTRADA(), u"P"_s);
            QCOMPARE(o.siguiente, Pantalla::Resumen);
        }
    }

    void vistaPrevia()
    {
        Opciones o(u"480"_s);
        int paginas = 0;
        QStringList visibles;
        QTimer::singleShot(0, o.pantalla.get(), [&] {
            auto *dialogo = QApplication::activeModalWidget();
            paginas = dialogo->findChild<QPrintPreviewWidget *>()->pageCount();
            for (const QAction *accion : dialogo->findChildren<QAction *>())
                if (accion->isVisible())
                    visibles << accion->text();
            dialogo->close();
        });
        o.manos->pulsar("btnVistaPrevia");
        QCOMPARE(paginas, 2);
        QVERIFY(visibles.contains(u"Zoom in") && !visibles.contains(u"Print"));
        QVERIFY(o.pantalla->isVisible());
    }

    void guardarPdf()
    {
        for (const bool unoSolo : {true, false}) {
            Opciones o(u"430"_s);
            QDir carpeta(o.entorno.ruta(u"salida"_s));
            QVERIFY(carpeta.mkpath(u"."_s));
            o.boton("chkUnPdf")->setChecked(unoSolo);
            QString propuesto;
            ficheros::observar([&](QFileDialog &dialogo) {
                propuesto = QFileInfo(dialogo.selectedFiles().value(0)).fileName();
                dialogo.selectFile(carpeta.filePath(u"x_AD-IT.pdf"_s));
                QTimer::singleShot(0, &dialogo,
                                   [&dialogo] { static_cast<QDialog &>(dialogo).accept(); });
            });
            o.responderYPulsar(QMessageBox::Ok, "btnGuardarPdf");
            QCOMPARE(propuesto, u"430_2026-01_A58818501_AD-IT.pdf"_s);
            QCOMPARE(carpeta.entryList(QDir::Files).join(u' '),
                     unoSolo ? u"x_AD-IT.pdf"_s : u"x_AD.pdf x_IT.pdf"_s);
            QVERIFY(o.pantalla->isVisible());
        }
    }
};

QTEST_MAIN(TstImpresoPantalla)
#include "tst_impreso_pantalla.moc"
