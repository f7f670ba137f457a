#include "app/MDIOstrel.h"
#include "exchange/FrmExportar.h"
#include "exchange/Importacion.h"
#include "exchange/frmimport.h"
#include "support/LineasPrueba.h"
#include "support/PantallaAbierta.h"
#include "support/Retrato.h"
#include "widgets/Ficheros.h"
#include "widgets/Navegador.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QMimeData>
#include <QRegularExpression>

/// Declarants 1 to 3, by name the other way round.
struct Exportar : PantallaAbierta<FrmExportar>
{
    Exportar()
    {
        for (const int numero : {2, 1, 3})
            Entorno::altaDeclarante(lineas::dni(numero), QString(u"CBA"_s.at(numero - 1)));
        abrir();
        manos->escribir("txtFichero", destino());
    }
    QString destino() const { return entorno.ruta(u"fuera.txt"_s); }
    QTableView *grid(const char *nombre) const { return manos->control<QTableView>(nombre); }
    /// The names in both lists.
    QString nombres() const
    {
        QString texto;
        for (const char *nombre : {"flxContri", "flxContriExp"}) {
            const auto *modelo = grid(nombre)->model();
            for (int i = 0; i < modelo->rowCount(); ++i)
                texto += modelo->index(i, 2).data().toString();
            texto += u'|';
        }
        return texto.chopped(1);
    }
    /// What an empty list says.
    QString vacio(const char *nombre) const
    {
        const auto *texto = grid(nombre)->findChild<QLabel *>();
        return texto->isVisible() ? texto->text() : QString();
    }
    QPoint fila(const char *nombre, int numero) const
    {
        return grid(nombre)->visualRect(grid(nombre)->model()->index(numero, 2)).center();
    }
};

struct Importar : PantallaAbierta<frmimport>
{
    explicit Importar(const QByteArray &contenido)
    {
        lineas::escribir(origen(), contenido);
        abrir();
        manos->escribir("txtFichero", origen());
    }
    QString origen() const { return entorno.ruta(u"dentro.txt"_s); }
    QString cuentas() const
    {
        return manos->textos(
            "lblNumImportados lblNumIncorrectos lblNumSustituidos lblNumIgnorados");
    }
};

class TstIntercambioPantallas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listas()
    {
        Exportar e;
        QCOMPARE(e.nombres(), u"CBA|"_s);
        QCOMPARE(e.vacio("flxContriExp"), u"Todavía no se ha elegido ningún declarante."_s);
        const auto *modelo = e.grid("flxContri")->model();
        QCOMPARE(modelo->index(0, 1).data().toString(), lineas::dni(1));
        QVERIFY(!e.manos->control("cmdExportar")->isEnabled());
        e.grid("flxContri")->setFocus();
        QTest::keyClick(e.grid("flxContri"), Qt::Key_Down, Qt::ShiftModifier);
        e.manos->pulsar("cmdAnadir");
        QCOMPARE(e.nombres(), u"A|CB"_s);
        QCOMPARE(e.manos->textos("lblResultado1 lblresultado2"),
                 u"1 declarantes seleccionados|2 declarantes seleccionados para exportar "_s);
        auto *elegidos = e.grid("flxContriExp")->viewport();
        QTest::mouseClick(elegidos, Qt::LeftButton, {}, e.fila("flxContriExp", 0));
        QTest::mouseDClick(elegidos, Qt::LeftButton, {}, e.fila("flxContriExp", 0));
        QCOMPARE(e.nombres(), u"CA|B"_s);
        e.manos->pulsar("cmdAnadirTodos");
        QCOMPARE(e.nombres(), u"|BCA"_s);
        QVERIFY(!e.manos->control("cmdAnadir")->isEnabled());
        QCOMPARE(e.vacio("flxContri"), u"Todos los declarantes están en la otra lista."_s);
        e.manos->pulsar("cmdRetirar");
        QCOMPARE(e.nombres(), u"B|CA"_s);
        e.manos->pulsar("cmdRetirarTodos");
        QCOMPARE(e.nombres(), u"CBA|"_s);
        auto *cabecera = e.grid("flxContri")->horizontalHeader();
        QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, {},
                          {cabecera->sectionViewportPosition(2) + 8, 5});
        QCOMPARE(e.nombres(), u"ABC|"_s);
        e.grid("flxContri")->setFocus();
        QTest::keyClicks(e.grid("flxContri"), u"c"_s);
        QCOMPARE(e.nombres(), u"C|"_s);
        QTest::keyClicks(e.grid("flxContri"), u"x"_s);
        QCOMPARE(e.vacio("flxContri"), u"Ningún declarante contiene «cx»."_s);
        QTest::keyClick(e.grid("flxContri"), Qt::Key_Backspace);
        QTest::keyClick(e.grid("flxContri"), Qt::Key_Return);
        QTest::keyClick(e.grid("flxContri"), Qt::Key_Escape);
        QCOMPARE(e.nombres(), u"AB|C"_s);
        Entorno::pasarAEuskera(*e.pantalla);
        QCOMPARE(e.manos->textos("lblResultado1 lblresultado2"),
                 u"2 aitortzaile hautatu d(ir)a|1 aitortzaile hautatu dira esportatzeko"_s);
        e.abrir(); // begins afresh
        QVERIFY(e.nombres().size() == 4 && e.nombres().endsWith(u'|'));
    }

    void escribirFichero()
    {
        Exportar e;
        e.manos->pulsar("cmdAnadirTodos");
        e.manos->pulsar("cmdExportar");
        const QByteArray escrito = lineas::leer(e.destino());
        QCOMPARE(escrito.size(), 3 * 155);
        QVERIFY(escrito.startsWith(lineas::dni(1).toLatin1()));
        // whatever the answer, the file is written again
        for (const auto respuesta : {QMessageBox::No, QMessageBox::Yes}) {
            lineas::escribir(e.destino(), "old");
            e.responderYPulsar(respuesta, "cmdExportar");
            const auto caja = e.mensajes.tomar().value(0);
            QCOMPARE(caja.titulo + u'|' + caja.texto,
                     u"Confirmación...|El archivo ya existe. ¿Desea sobreescribirlo?"_s);
            QCOMPARE(caja.botones, QMessageBox::Yes | QMessageBox::No);
            QCOMPARE(caja.porDefecto, QMessageBox::No);
            QCOMPARE(lineas::leer(e.destino()), escrito);
        }
        e.manos->escribir("txtFichero", rutas().datos);
        e.responderYPulsar(QMessageBox::Ok, "cmdExportar");
        QVERIFY(e.mensajes.texto().contains(u"del propio programa"));
        e.manos->escribir("txtFichero", e.entorno.ruta(u"no/hay.txt"_s));
        e.responderYPulsar(QMessageBox::Ok, "cmdExportar");
        QVERIFY(e.mensajes.texto().startsWith(u"No se ha podido escribir el fichero"));
    }

    void dialogoFichero()
    {
        Exportar e;
        QString textos;
        ficheros::observar([&](QFileDialog &dialogo) {
            textos = dialogo.windowTitle() + u'|' + dialogo.nameFilters().join(u'|');
            QTimer::singleShot(0, &dialogo, &QDialog::accept);
        });
        e.manos->escribir("txtFichero", e.entorno.ruta(u"Contri.txt"_s));
        e.manos->pulsar("cmdFichero");
        ficheros::observar({});
        QCOMPARE(textos, u"Exportar a...|*.txt|*.*"_s);
        QCOMPARE(e.manos->texto("txtFichero"),
                 QDir::toNativeSeparators(e.entorno.ruta(u"Contri.txt"_s)));
        Importar i(lineas::fichero(1, 2));
        i.manos->escribir("txtFichero", QString());
        for (const bool elegido : {true, false}) { // given up, it stays as it was
            ficheros::observar([&](QFileDialog &dialogo) {
                dialogo.selectFile(i.origen());
                QTimer::singleShot(0, &dialogo, elegido ? &QDialog::accept : &QDialog::reject);
            });
            i.manos->pulsar("cmdFichero");
            QCOMPARE(i.manos->texto("txtFichero"), QDir::toNativeSeparators(i.origen()));
        }
        ficheros::observar({});
    }

    void importarPreguntando()
    {
        Importar i(lineas::fichero(1, 3) + "corta\r\n");
        compararRetrato(*i.pantalla,
                        u"&Fichero a importar\n[txtFichero=%1] <Seleccionar fichero>\n"
                        "También puede arrastrar el fichero hasta esta ventana.\n<Automático>\n"
                        "Importados 0\nIncorrectos 0\nSustituídos 0\nIgnorados 0\n"
                        "<Importar> <Cerrar>"_s.arg(i.origen()));
        QSignalSpy cambios(i.pantalla.get(), &PantallaBase::datosCambiados);
        Entorno::altaDeclarante(lineas::dni(2), u"VIEJA"_s);
        i.manos->tecla(Qt::Key_Return);
        QTRY_COMPARE(i.manos->texto("lblResumen"),
                     u"Líneas: 4. Nuevos: 2. Ya existentes: 1. Incorrectas: 1."_s);
        QVERIFY(!i.manos->control("cmdAbrirErrores")->isVisible());
        i.mensajes.responder(QMessageBox::No);
        i.responderYPulsar(QMessageBox::Ok, "cmdImportar");
        const auto vistos = i.mensajes.tomar();
        QCOMPARE(vistos.size(), 2);
        QCOMPARE(vistos[0].titulo, u"Importar declarantes"_s);
        QCOMPARE(vistos[0].texto,
                 u"El declarante con dni-cif %1 ya existe \r"
                 "¿Está seguro que desea sustituirlo?"_s.arg(lineas::dni(2)));
        QCOMPARE(vistos[0].icono, QMessageBox::Question);
        QCOMPARE(vistos[0].porDefecto, QMessageBox::No);
        QCOMPARE(vistos[1].texto, u"Hay 1 declarante erroneo"_s);
        QCOMPARE(vistos[1].icono, QMessageBox::Information);
        QCOMPARE(i.cuentas(), u"2|1|0|1"_s);
        QCOMPARE(i.manos->textos("lblErrores lblFicheroErrores"),
                 u"Consulte el fichero para  visualizar los errores de importación :|"_s
                     + QDir::toNativeSeparators(FicheroErrores::ruta()));
        QCOMPARE(cambios.count(), 1);
        QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 3);
        QUrl abierto;
        navegador::sustituir([&](const QUrl &direccion) {
            abierto = direccion;
            return false;
        });
        i.responderYPulsar(QMessageBox::Ok, "cmdAbrirErrores");
        navegador::sustituir({});
        QCOMPARE(abierto, QUrl::fromLocalFile(FicheroErrores::ruta()));
        QCOMPARE(i.mensajes.texto(),
                 u"Ningún programa ha podido abrir el fichero «%1»."_s.arg(
                     QDir::toNativeSeparators(FicheroErrores::ruta())));

        i.mensajes.responder(QMessageBox::YesToAll);
        for (const int cajas : {2, 1}) { // the second time by the box to be asked nothing
            i.responderYPulsar(QMessageBox::Ok, "cmdImportar");
            QCOMPARE(i.mensajes.tomar().size(), cajas);
            QCOMPARE(i.cuentas(), u"0|1|3|0"_s);
            i.manos->pulsar("chkauto");
        }
        Entorno::pasarAEuskera(*i.pantalla);
        i.mensajes.responder(QMessageBox::NoToAll);
        i.responderYPulsar(QMessageBox::Ok, "cmdImportar");
        QCOMPARE(i.mensajes.tomar().value(0).texto,
                 lineas::dni(1)
                     + u" zk.ko NA/IFK duen aitortzailea lehenagotik dago \r"
                       "Ziur al zaude ordezkatu nahi duzula?"_s);
        QCOMPARE(i.cuentas(), u"0|1|0|3"_s);
        lineas::escribir(i.origen(), "");
        QCOMPARE(i.aviso("cmdImportar"),
                 u"«%1» fitxategia hutsik dago."_s.arg(QDir::toNativeSeparators(i.origen())));
    }

    void detener()
    {
        // what is stored: nothing when the file was still being looked through
        for (const auto &[manera, guardadas] :
             {std::pair{"cmdDetener", 500}, {"Escape", 500}, {"frame", 500}, {"cmdDetener", 0}}) {
            Importar i(lineas::fichero(1, 1500));
            if (guardadas > 0) {
                i.manos->tecla(Qt::Key_Return);
                QTRY_VERIFY(!i.manos->texto("lblResumen").isEmpty());
            }
            QString progreso;
            bool ocupada = false;
            // once the bar is there; the same look at the screen that a person takes
            QTimer mirada;
            connect(&mirada, &QTimer::timeout, this, [&, manera = manera] {
                if (!i.manos->control("cmdDetener")->isVisible())
                    return;
                mirada.stop();
                progreso = i.manos->texto("lblProgreso");
                ocupada = i.pantalla->edita() && !i.manos->control("cmdImportar")->isEnabled();
                i.salir(manera);
            });
            mirada.start(0);
            i.responderYPulsar(QMessageBox::Ok, "cmdImportar");
            QCOMPARE(progreso, u"Línea 500 de 1500"_s);
            QVERIFY(ocupada);
            QCOMPARE(i.mensajes.texto(),
                     u"Se ha detenido la importación después de la línea %1."_s.arg(guardadas));
            QCOMPARE(i.cuentas(), u"%1|0|0|0"_s.arg(guardadas));
            QVERIFY(i.pantalla->isVisible() && !i.pantalla->edita());
            QVERIFY(!i.manos->control("prgProgreso")->isVisible());
            QVERIFY(i.manos->control("cmdImportar")->isEnabled());
        }
    }

    /// While the import runs nothing else can be begun, nor the program left.
    void ventanaOcupada()
    {
        const Entorno entorno;
        ConductorMensajes mensajes;
        MDIOstrel ventana;
        ventana.show();
        Entorno::altaDeclarante();
        lineas::escribir(entorno.ruta(u"dentro.txt"_s), lineas::fichero(1, 1200));
        ventana.findChild<QAction *>(u"mnuImport"_s)->trigger();
        auto *importar = ventana.findChild<frmimport *>();
        QVERIFY(importar);
        const Manos manos(*importar);
        manos.escribir("txtFichero", entorno.ruta(u"dentro.txt"_s));
        QStringList usables;
        bool cerrada = true;
        QTimer mirada;
        connect(&mirada, &QTimer::timeout, this, [&] {
            if (!importar->trabaja())
                return;
            mirada.stop();
            for (const auto *accion :
                 ventana.findChildren<QAction *>(QRegularExpression(u"^mnu"_s)))
                if (accion->isEnabled() && !accion->menu())
                    usables += accion->objectName();
            cerrada = ventana.close();
        });
        mirada.start(0);
        mensajes.responder(QMessageBox::Ok);
        manos.pulsar("cmdImportar");
        QCOMPARE(mensajes.texto(), u"Sus datos han sido importados correctamente"_s);
        QCOMPARE(usables, QStringList());
        QVERIFY(!cerrada && ventana.isVisible());
        QVERIFY(ventana.findChild<QAction *>(u"mnuExport"_s)->isEnabled());
        QCOMPARE(unico::la<CEntrada>().NUMDECLA(), 1201);
    }

    void noImportable()
    {
        Importar i("");
        QFile::remove(i.origen());
        QCOMPARE(i.aviso("cmdImportar"), u"No existe el fichero que se desea importar"_s);
    }

    void arrastrar()
    {
        Importar i(lineas::fichero(1, 2));
        i.manos->escribir("txtFichero", QString());
        const auto soltar = [&](const QList<QUrl> &direcciones) {
            QMimeData datos;
            datos.setUrls(direcciones);
            QDragEnterEvent entrada({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, {});
            QCoreApplication::sendEvent(i.pantalla.get(), &entrada);
            if (!entrada.isAccepted())
                return false;
            QDropEvent caida({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, {});
            QCoreApplication::sendEvent(i.pantalla.get(), &caida);
            return true;
        };
        const QUrl fichero = QUrl::fromLocalFile(i.origen());
        QVERIFY(!soltar({QUrl(u"https://nowhere.example/Contri.txt"_s)}));
        QVERIFY(!soltar({fichero, fichero}) && soltar({fichero}));
        QTRY_COMPARE(i.manos->texto("lblResumen"),
                     u"Líneas: 2. Nuevos: 2. Ya existentes: 0. Incorrectas: 0."_s);
        QCOMPARE(i.manos->texto("txtFichero"), QDir::toNativeSeparators(i.origen()));
    }
};

QTEST_MAIN(TstIntercambioPantallas)
#include "tst_intercambio_pantallas.moc"
