// What the program does without a command, a task a process: bench_tareas TASK FOLDER [MODEL]
// [NUMBER]. It prints what each part of the task costs; `calcar` draws the same as `imprimir` by
// plain calls.

#include "Calco.h"
#include "app/Arranque.h"
#include "app/DialogosVentana.h"
#include "app/Estilo.h"
#include "app/MDIOstrel.h"
#include "campaign/FrmPendientes.h"
#include "campaign/ImpresionVarias.h"
#include "campaign/cPendientes.h"
#include "core/Sesion.h"
#include "declarants/FrmDecLista.h"
#include "declarants/cDecLista.h"
#include "declarations/EntradaTexto.h"
#include "declarations/cDatos430.h"
#include "help/TeclaAyuda.h"
#include "printing/DocumentoPdf.h"
#include "printing/TrabajoImpresion.h"
#include "printing/cImprimirVarias.h"
#include "reloj.h"
#include "server/Servidor.h"
#include "support/DeclaracionesPrueba.h"

#include <QApplication>
#include <QFile>
#include <QMap>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

#include <stdexcept>

using namespace Qt::StringLiterals;

/// Everything that is under way: what waits in the event loop, and what that leaves behind.
static void terminar()
{
    constexpr double nada = 0.0005;
    for (double antes = 0; reloj_ahora() - antes > nada;) {
        antes = reloj_ahora();
        QApplication::processEvents();
    }
}

static void inicio()
{
    const auto ventana = Arranque({{}, {}}).iniciar();
    ventana->repaint();
    reloj_parte("window", 0);
    terminar();
    reloj_parte("checked", 0);
}

static void lista()
{
    prepararSesion();
    double desde = reloj_ahora();
    {
        cDecLista registro;
        registro.ORDEN(cDecLista::PorNombre);
        registro.CargarDeclarantes();
        desde = reloj_parte("load", desde);
    }
    FrmDecLista pantalla;
    pantalla.show();
    terminar();
    auto *tabla = pantalla.findChild<QWidget *>(u"flxDeclarantes"_s);
    desde = reloj_ahora();
    QTest::keyClick(tabla, Qt::Key_M);
    desde = reloj_parte("key", desde);
    QTest::keyClick(tabla, Qt::Key_Escape);
    desde = reloj_ahora();
    QTest::keyClick(tabla, Qt::Key_1, Qt::ControlModifier);
    reloj_parte("sort", desde);
}

static void pendientes()
{
    prepararSesion();
    unico::la<cPendientes>().CABECERA(2026, 1);
    QFontMetrics(QApplication::font())
        .averageCharWidth(); // a running program has looked for its fonts
    const double desde = reloj_ahora();
    FrmPendientes pantalla;
    pantalla.show();
    terminar();
    reloj_parte("pending", desde);
}

/// As the screen of the 430 stores one, after the check of the whole file.
static void guardar(int cuantas)
{
    prepararSesion();
    comprobarDatos();
    const double desde = reloj_ahora();
    for (int csco = 1; csco <= cuantas; ++csco) {
        auto &cabecera = unico::la<cDecResumen>();
        cabecera.TomarDeclarante(csco, {}, {});
        cabecera.EJERCICIO(2025);
        cabecera.CambiarModelo(Modelo430);
        cabecera.PERIODO(3);
        auto &registro = unico::la<cDatos430>();
        registro.MODO(Modo::Alta);
        tomarDato(Dato430::Base, u"1234,56"_s);
        if (registro.ValidarDatos430(registro.RegistroValidar()) != 0
            || registro.GuardarDeclaracion(registro.RegistroGuardar()) < 1)
            throw std::runtime_error("a return was not stored");
    }
    reloj_parte("save", desde);
}

static QString pedirUna(const QString &modelo)
{
    prepararSesion();
    pedirImpresion(modelo);
    unico::la<cImOf>().COPIAINT({});
    return rutas().programa + u"/impreso.pdf"_s;
}

/// One alone as the screen saves it, many as the campaign does.
static void imprimir(const QString &modelo, int cuantas)
{
    const QString ruta = pedirUna(modelo);
    auto &cabecera = unico::la<cDecResumen>();
    const double desde = reloj_ahora();
    QString motivo;
    if (cuantas == 1) {
        TrabajoImpresion trabajo(unico::la<cImOf>());
        motivo = guardarPdfs(trabajo, {ruta});
    } else {
        const auto &peticion = unico::la<cImOf>();
        const FilaImprimir fila{peticion.CSCO(),
                                peticion.CSDE(),
                                cabecera.DNI(),
                                {},
                                cabecera.CargarDeclaraciones()[0]};
        auto &varias = unico::la<cImprimirVarias>();
        varias.PETICION() = peticion;
        varias.Pedir(QList<FilaImprimir>(cuantas, fila));
        motivo = impresionVarias::enFichero(varias, ruta, [](qint64) { return true; });
        if (varias.cuantas(FilaImprimir::Hecha) != cuantas)
            throw std::runtime_error("a form was not printed");
    }
    reloj_parte("print", desde);
    if (!motivo.isEmpty())
        throw std::runtime_error(motivo.toStdString());
}

static void calcar(const QString &modelo, int cuantas)
{
    const QString ruta = pedirUna(modelo);
    Calco calco;
    {
        QPainter pintor(&calco);
        TrabajoImpresion(unico::la<cImOf>()).dibujar(pintor, CopiaAdministracion.toString());
    }
    const double desde = reloj_ahora();
    QPdfWriter pdf(ruta);
    prepararPagina(pdf);
    QPainter pintor(&pdf);
    pintor.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < cuantas; ++i) {
        if (i > 0)
            pdf.newPage();
        for (const auto &llamada : std::as_const(calco.llamadas))
            llamada(pintor);
    }
    pintor.end();
    reloj_parte("print", desde);
}

int main(int argc, char **argv)
{
    QApplication aplicacion(argc, argv);
    const QStringList argumentos = QApplication::arguments() + QStringList{{}, {}, {}, {}};
    const TextosQt textos;
    const TeclaAyuda f1;
    QApplication::installTranslator(const_cast<TextosQt *>(&textos));
    aplicarEstilo();
    fijarRutas(Rutas::desde(argumentos[2]));
    DialogosVentana dialogos;
    registrarServidor(&dialogos);
    const QMap<QString, std::function<void()>> tareas{
        {u"inicio"_s, inicio},
        {u"lista"_s, lista},
        {u"pendientes"_s, pendientes},
        {u"guardar"_s, [&] { guardar(argumentos[3].toInt()); }},
        {u"imprimir"_s, [&] { imprimir(argumentos[3], argumentos[4].toInt()); }},
        {u"calcar"_s, [&] { calcar(argumentos[3], argumentos[4].toInt()); }},
    };
    if (!tareas.contains(argumentos[1]))
        return 2;
    tareas[argumentos[1]]();
}
