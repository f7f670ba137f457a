// Pictures of the screens: imagenes DATA-FOLDER OUTPUT-FOLDER C|E. See scripts/imagenes.sh.

#include "app/Arranque.h"
#include "app/DialogosVentana.h"
#include "app/Estilo.h"
#include "app/MDIOstrel.h"
#include "core/CEntrada.h"
#include "core/Rutas.h"
#include "core/Sesion.h"
#include "core/Unico.h"
#include "help/TeclaAyuda.h"
#include "maintenance/FrmIdioma.h"
#include "maintenance/FrmSinConexion.h"
#include "maintenance/FrmVersionCheck.h"
#include "maintenance/cActOnline.h"
#include "server/Servidor.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

static QString salida;

static void guardar(QWidget &ventana, const QString &nombre)
{
    QTest::qWait(60);
    constexpr int menosBytes = 0;
    if (!ventana.grab().save(salida + u'/' + nombre + u".png"_s, "PNG", menosBytes))
        qFatal("cannot write a picture");
}

static QWidget &buscar(const QString &nombre, QWidget *en = nullptr)
{
    for (int intento = 0; intento < 100; ++intento, QTest::qWait(10)) {
        for (auto *widget : QApplication::allWidgets()) {
            if (widget->objectName() == nombre && widget->isVisible()
                && (!en || en->isAncestorOf(widget)))
                return *widget;
        }
    }
    qFatal("no control %s", qPrintable(nombre));
}

static void pulsar(const QString &pantalla, const QString &boton)
{
    auto &control = buscar(boton, &buscar(pantalla));
    static_cast<QAbstractButton &>(control).click();
}

static void elegir(const MDIOstrel &ventana, const char *entrada)
{
    ventana.findChild<QAction *>(QString::fromLatin1(entrada))->trigger();
}

/// A picture of the screen that a menu leads to, in the main window.
static void dentro(MDIOstrel &ventana, const char *entrada, const QString &pantalla,
                   const QString &salir)
{
    if (!ventana.findChild<QAction *>(QString::fromLatin1(entrada))->isEnabled())
        return;
    elegir(ventana, entrada);
    auto &abierta = buscar(pantalla);
    guardar(abierta.isWindow() ? abierta : ventana, pantalla);
    if (!salir.isEmpty())
        pulsar(pantalla, salir);
    else
        (abierta.isWindow() ? &abierta : abierta.parentWidget())->close();
    QTest::qWait(20);
}

static void declaraciones(MDIOstrel &ventana)
{
    const QString resumen = u"FrmDecResumen"_s;
    elegir(ventana, "d1");
    buscar(resumen);
    guardar(ventana, resumen);
    const auto abrirFila = [&](const QString &modelo) {
        // the summary is another one each time
        auto &tabla = static_cast<QTableView &>(buscar(u"flxDeclaraciones"_s));
        for (int fila = 0; fila < tabla.model()->rowCount(); ++fila) {
            if (tabla.model()->index(fila, 4).data().toString() == modelo)
                tabla.selectRow(fila);
        }
        pulsar(resumen, u"cmdDatos"_s);
    };
    abrirFila(u"430"_s);
    buscar(u"FrmDatos430"_s);
    guardar(ventana, u"FrmDatos430"_s);
    pulsar(u"FrmDatos430"_s, u"cmdCancelar"_s);
    buscar(resumen);
    abrirFila(u"480"_s);
    for (const char *pagina : {"FrmDatos480a", "FrmDatos480b", "FrmDatos480c"}) {
        const QString nombre = QString::fromLatin1(pagina);
        buscar(nombre);
        guardar(ventana, nombre);
        pulsar(nombre, nombre.endsWith(u'c') ? u"cmdCancelar"_s : u"cmdSiguiente"_s);
    }
    buscar(resumen);
    pulsar(resumen, u"cmdDeclarante"_s);
    guardar(ventana, buscar(u"frmDecDatos"_s).objectName());
    pulsar(u"frmDecDatos"_s, u"cmdCancelar"_s);
    pulsar(resumen, u"cmdImprimir"_s);
    guardar(buscar(u"FrmImOf"_s), u"FrmImOf"_s);
    pulsar(u"FrmImOf"_s, u"btnCancelar"_s);
    static_cast<QTableView &>(buscar(u"flxDeclaraciones"_s)).selectAll();
    pulsar(resumen, u"cmdImprimir"_s);
    const QString varias = buscar(u"FrmImprimirVarias"_s).objectName();
    guardar(ventana, varias);
    pulsar(varias, u"cmdCancelar"_s);
    elegir(ventana, "d1");
    pulsar(resumen, u"cmdCerrar"_s);
}

static void sueltas()
{
    FrmIdioma idioma;
    auto &actualizacion = unico::la<cActOnline>();
    actualizacion.TomarRespuesta(
        "[informacion]\ncurrentversion=1.2.0\ndescripcion=Ostrel 1.2.0\n"
        "downloadurl=https://www.varlenda.example/ostrel/ostrel-1.2.0.exe\n");
    FrmVersionCheck version;
    actualizacion.SitAct(cActOnline::SinServidor);
    FrmSinConexion sinConexion;
    for (PantallaBase *una :
         {static_cast<PantallaBase *>(&idioma), static_cast<PantallaBase *>(&version),
          static_cast<PantallaBase *>(&sinConexion)}) {
        una->show();
        guardar(*una, una->objectName());
    }
}

int main(int argc, char **argv)
{
    QApplication aplicacion(argc, argv);
    const QStringList argumentos = QApplication::arguments();
    if (argumentos.size() != 4)
        qFatal("usage: imagenes DATA-FOLDER OUTPUT-FOLDER C|E");
    QCoreApplication::setApplicationVersion(QStringLiteral(OSTREL_VERSION));
    salida = argumentos[2];
    QDir().mkpath(salida);
    TextosQt textos;
    QApplication::installTranslator(&textos);
    aplicarEstilo();
    fijarRutas(Rutas::desde(argumentos[1]));
    DialogosVentana dialogos;
    registrarServidor(&dialogos);
    prepararSesion();
    unico::la<CEntrada>().IDI(argumentos[3]);

    MDIOstrel ventana;
    ventana.resize(1180, 800);
    ventana.show();
    guardar(ventana, u"MDIOstrel"_s);
    dentro(ventana, "mnuAbrirDeclarante", u"FrmDecLista"_s, u"cmdCancelar"_s);
    declaraciones(ventana);
    dentro(ventana, "mnuPendientes", u"FrmPendientes"_s, {});
    dentro(ventana, "mnuImportarDeclaraciones", u"FrmImportarDeclaraciones"_s, {});
    dentro(ventana, "mnuExport", u"FrmExportar"_s, {});
    dentro(ventana, "mnuImport", u"frmimport"_s, {});
    dentro(ventana, "mnuPreferencias", u"frmPreferencias"_s, u"cmdCancelar"_s);
    dentro(ventana, "mnuacerca", u"frmAbout"_s, u"cmdAceptar"_s);
    abrirAyuda(u"frmdatos430.htm"_s);
    guardar(buscar(u"FrmAyuda"_s), u"FrmAyuda"_s);
    sueltas();
}
