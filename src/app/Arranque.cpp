#include "app/Arranque.h"

#include "app/Apariencia.h"
#include "app/MDIOstrel.h"
#include "app/TextosQt.h"
#include "app/Version.h"
#include "app/frmInicio.h"
#include "core/Servicios.h"
#include "core/Sesion.h"
#include "help/TeclaAyuda.h"
#include "maintenance/FrmIdioma.h"
#include "widgets/Mensajes.h"
#include "widgets/Procedimiento.h"

#include <QApplication>
#include <QTimer>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

/// Lets installers see that the program runs; a second copy starts all the same.
static void crearMutex()
{
#ifdef Q_OS_WIN
    CreateMutexW(nullptr, FALSE, L"Ostrel de seguros");
#endif
}

static InicioSesion prepararSesion()
{
    const PunteroOcupado ocupado;
    return iniciarSesion();
}

static void contarFallos(const QStringList &fallos)
{
    if (!fallos.isEmpty()) {
        mensajes::aviso(nullptr, msj(Msj::TituloPrograma),
                        msj(Msj::InicioConFallos, fallos.join(u'\n')));
    }
}

static bool pideBusqueda()
{
    try {
        return servicioDatos()->ObtenerActOnline() == 1;
    } catch (const std::exception &) {
        return false; // the settings could not be read, which has been told
    }
}

std::unique_ptr<MDIOstrel> Arranque::iniciar()
{
    crearMutex();
    QCoreApplication::setApplicationVersion(versionPrograma());
    const auto sesion = prepararSesion();
    if (sesion.terminar)
        return nullptr;
    contarFallos(sesion.textos());
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
    if (!pideBusqueda()) {
        inicio.mostrarDurante(m_esperas.normal, {});
        return;
    }
    inicio.mostrarDurante(m_esperas.conBusqueda,
                          [&] { procedimiento(&inicio, buscarActualizacion); });
}

int abrirVentana(int &argc, char **argv)
{
    QApplication aplicacion(argc, argv);
    TextosQt textos;
    QApplication::installTranslator(&textos);
    const TeclaAyuda f1;
    aplicarApariencia();
    const auto ventana = Arranque().iniciar();
    return ventana ? QApplication::exec() : 0;
}
