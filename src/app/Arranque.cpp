#include "app/Arranque.h"

#include "app/Estilo.h"
#include "app/MDIOstrel.h"
#include "app/frmInicio.h"
#include "core/Sesion.h"
#include "core/Unico.h"
#include "help/TeclaAyuda.h"
#include "maintenance/BuscarActualizacion.h"
#include "maintenance/FrmIdioma.h"
#include "maintenance/cActOnline.h"
#include "widgets/Ficheros.h"
#include "widgets/Mensajes.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <QToolBar>

#include <cstdio>
#include <cstdlib>

InicioSesion prepararSesion()
{
    const PunteroOcupado ocupado;
    InicioSesion inicio = iniciarSesion();
    if (!inicio.terminar) {
        auto &actualizacion = unico::la<cActOnline>();
        inicio.intentar([&] { actualizacion.ObtenerURLAct(); });
        inicio.intentar([&] { actualizacion.LeerActOnline(); });
    }
    return inicio;
}

void contarFallos(const InicioSesion &inicio)
{
    if (!inicio.fallos.isEmpty()) {
        mensajes::aviso(nullptr, msj(Msj::TituloPrograma),
                        msj(Msj::InicioConFallos, inicio.textos().join(u'\n')));
    }
}

Arranque::Arranque(EsperasInicio esperas)
    : buscarActualizacion([] { ::buscarActualizacion(); })
    , m_esperas(esperas)
{
}

/// In the middle of the screen, or over all of it when it is small.
static void mostrarCentrada(QMainWindow &ventana)
{
    constexpr QSize deseado(1180, 800);
    const QRect libre = ventana.screen()->availableGeometry();
    if (libre.width() < deseado.width() || libre.height() < deseado.height()) {
        // every line counts for the screens inside
        for (auto *barra : ventana.findChildren<QToolBar *>())
            barra->setIconSize({20, 20});
        ventana.setGeometry(libre);
        ventana.showMaximized();
        return;
    }
    QRect lugar({}, deseado);
    lugar.moveCenter(libre.center());
    ventana.setGeometry(lugar);
    ventana.show();
}

std::unique_ptr<MDIOstrel> Arranque::iniciar()
{
    const auto sesion = prepararSesion();
    if (sesion.terminar)
        return nullptr;
    contarFallos(sesion);
    if (sesion.primeraVez())
        elegirIdioma();
    mostrarInicio();
    auto ventana = std::make_unique<MDIOstrel>();
    mostrarCentrada(*ventana);
    if (sesion.fallos.isEmpty())
        QTimer::singleShot(0, ventana.get(),
                           [ventana = ventana.get()] { procedimiento(ventana, comprobarDatos); });
    return ventana;
}

void Arranque::elegirIdioma()
{
    FrmIdioma eleccion;
    eleccion.ejecutar();
}

void Arranque::mostrarInicio()
{
    frmInicio inicio;
    if (unico::la<cActOnline>().ActOnline() != 1) {
        inicio.mostrarDurante(m_esperas.normal, {});
        return;
    }
    inicio.mostrarDurante(m_esperas.conBusqueda,
                          [&] { procedimiento(&inicio, buscarActualizacion); });
}

/// Why there is no window, should Qt find none to open one on.
static QString motivoSinVentana(int argc, char **argv)
{
    QString plataforma = qEnvironmentVariable("QT_QPA_PLATFORM");
    for (int i = 1; i < argc; ++i)
        if (qstrcmp(argv[i - 1], "-platform") == 0)
            plataforma = QString::fromLocal8Bit(argv[i]);
    leerIdiomaGuardado();
    return plataforma.isEmpty() ? msj(Msj::SinPantalla)
                                : msj(Msj::PlataformaDesconocida, plataforma);
}

static QByteArray &motivo()
{
    static QByteArray texto;
    return texto;
}

/// Qt ends the process when it finds no screen: with our one line, and no core dump.
static void terminarSinVentana(QtMsgType tipo, const QMessageLogContext &, const QString &)
{
    if (tipo != QtFatalMsg)
        return;
    fprintf(stderr, "%s\n", motivo().constData());
    std::_Exit(1);
}

int abrirVentana(int &argc, char **argv)
{
    motivo() = motivoSinVentana(argc, argv).toLocal8Bit();
    const auto anterior = qInstallMessageHandler(terminarSinVentana);
    QApplication aplicacion(argc, argv);
    qInstallMessageHandler(anterior);
    ficheros::sinRastro();
    TextosQt textos;
    QApplication::installTranslator(&textos);
    const TeclaAyuda f1;
    aplicarEstilo();
    const auto ventana = Arranque().iniciar();
    return ventana ? QApplication::exec() : 0;
}
