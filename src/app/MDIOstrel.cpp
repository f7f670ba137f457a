#include "app/MDIOstrel.h"

#include "app/Arranque.h"
#include "app/MarcoInterior.h"
#include "app/Menus.h"
#include "app/Pantallas.h"
#include "app/Recientes.h"
#include "core/CEntrada.h"
#include "core/Servicios.h"
#include "core/Sesion.h"
#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecLista.h"
#include "declarants/cDecResumen.h"
#include "help/TeclaAyuda.h"
#include "help/TemasAyuda.h"
#include "maintenance/BuscarActualizacion.h"
#include "maintenance/cActOnline.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>

using namespace Qt::StringLiterals;

MDIOstrel::MDIOstrel(QWidget *padre)
    : QMainWindow(padre)
    , m_menus(new Menus(this))
    , m_recientes(new Recientes(m_menus->menu(0)))
    , m_estado(new QLabel(this))
    , m_version(new QLabel(this))
{
    setObjectName(u"MDIOstrel"_s);
    setWindowIcon(icono(Icono::Programa));
    setContextMenuPolicy(Qt::NoContextMenu);
    auto *area = new FondoMdi(this);
    setCentralWidget(area);
    m_pantallas = new Pantallas(area, this);
    m_version->setContentsMargins(0, 0, 10, 0);
    m_estado->setObjectName(u"lblEstado"_s);
    m_estado->setContentsMargins(10, 0, 0, 0);
    statusBar()->addWidget(m_estado, 1);
    statusBar()->addPermanentWidget(m_version);
    statusBar()->setSizeGripEnabled(false);
    conectar();
    Anadir_captions();
    alCambiarDatos();
    buscarSiSeAplazo();
}

MDIOstrel::~MDIOstrel()
{
    DescargarTodosLosFormularios();
}

void MDIOstrel::conectar()
{
    connect(m_menus, &Menus::pedido, this,
            [this](const Destino &destino) { procedimiento(this, [&] { atender(destino); }); });
    connect(m_recientes, &Recientes::elegido, this,
            [this](qint32 csco, const QString &dni, const QString &nombre) {
                procedimiento(this, [&] { verReciente(csco, dni, nombre); });
            });
    for (int menu = 0; menu < 2; ++menu) {
        connect(m_menus->menu(menu), &QMenu::aboutToShow, this, &MDIOstrel::actualizarEstados);
    }
    connect(m_pantallas, &Pantallas::cambiadas, this, &MDIOstrel::actualizarEstados);
    connect(m_pantallas, &Pantallas::dicho, this, &MDIOstrel::mostrarEnEstado);
    connect(m_pantallas, &Pantallas::datosCambiados, this, [this] {
        m_algoGuardado = true;
        alCambiarDatos();
    });
}

void MDIOstrel::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloVentana));
    m_version->setText(msj(Msj::VersionPrograma, QCoreApplication::applicationVersion()));
    m_menus->Anadir_captions();
    actualizarEstados();
}

void MDIOstrel::CambiarIdioma()
{
    anunciarIdioma();
}

void MDIOstrel::changeEvent(QEvent *evento)
{
    if (evento->type() == QEvent::LanguageChange) {
        Anadir_captions();
        m_estado->clear(); // told in the other language
    }
    // a menu used by keys keeps the focus when what it opened closes: back to the screen in front
    if (evento->type() == QEvent::ActivationChange && isActiveWindow()
        && focusWidget() == menuBar())
        m_pantallas->enfocar();
    QMainWindow::changeEvent(evento);
}

void MDIOstrel::closeEvent(QCloseEvent *evento)
{
    if (m_pantallas->trabajando() || !m_pantallas->puedenCerrarse()) {
        evento->ignore();
        return;
    }
    DescargarTodosLosFormularios();
    evento->accept();
    copiaDelDia();
}

void MDIOstrel::DescargarTodosLosFormularios()
{
    m_pantallas->terminar();
}

void MDIOstrel::atender(const Destino &destino)
{
    if (const auto *mando = std::get_if<Mando>(&destino))
        cumplir(*mando);
    else if (const auto *pantalla = std::get_if<Pantalla>(&destino))
        m_pantallas->abrir(*pantalla);
}

void MDIOstrel::cumplir(Mando mando)
{
    switch (mando) {
    case Mando::Nuevo:
        return nuevoDeclarante();
    case Mando::Abrir:
        return listaDeclarantes(Modo::Consulta);
    case Mando::Eliminar:
        return listaDeclarantes(Modo::Eliminar);
    case Mando::Copia:
        return servicioCopia(false, winId())->CrearBackup();
    case Mando::Restaurar:
        return restaurar();
    case Mando::Asistencia:
        return asistencia(false);
    case Mando::Descripcion:
        return asistencia(true);
    case Mando::Contenido:
        return abrirAyuda(ayuda::portada());
    case Mando::Salir:
        close();
        return;
    default: // the entry is disabled
        return;
    }
}

void MDIOstrel::nuevoDeclarante()
{
    unico::la<cDecDatos>().MODO(Modo::Alta);
    m_pantallas->abrir(Pantalla::DatosDeclarante);
}

void MDIOstrel::listaDeclarantes(const QString &modo)
{
    auto &lista = unico::la<cDecLista>();
    if (lista.MODO() != modo)
        m_pantallas->cerrar(Pantalla::ListaDeclarantes);
    // the declarant whose summary is open might be the one deleted
    if (modo == Modo::Eliminar)
        m_pantallas->cerrar(Pantalla::Resumen);
    lista.MODO(modo);
    m_pantallas->abrir(Pantalla::ListaDeclarantes);
}

void MDIOstrel::verReciente(qint32 csco, const QString &dni, const QString &nombre)
{
    auto &resumen = unico::la<cDecResumen>();
    resumen.ENTRADA(Entrada::Abrir);
    resumen.TomarDeclarante(csco, dni, nombre);
    m_pantallas->abrir(Pantalla::Resumen);
}

void MDIOstrel::mostrarEnEstado(const QString &texto, bool pasajera)
{
    constexpr int milisegundos = 6000;
    if (pasajera)
        statusBar()->showMessage(texto, milisegundos);
    else
        m_estado->setText(texto);
}

void MDIOstrel::asistencia(bool descripcion)
{
    auto servicio = servicio::crear<SvrKtComunLib::cMiscelaneos>();
    servicio->Idioma(desplazamientoIdioma());
    servicio->Parent(winId());
    descripcion ? servicio->MostrarOnlineInfo() : servicio->AccesoAyuOnline();
}

void MDIOstrel::restaurar()
{
    if (!servicioCopia(true, winId())->CrearRestore())
        return;
    // the keys that it shows may be those of others now
    m_pantallas->cerrar(Pantalla::Resumen);
    const auto sesion = prepararSesion();
    if (sesion.terminar) {
        close();
        return;
    }
    contarFallos(sesion);
    m_estado->clear(); // it may tell of a return that is not there now
    CambiarIdioma();
    m_pantallas->actualizar();
    m_algoGuardado = false; // what is there now has its copy
}

/// A copy is made at the end of a session in which something was saved, once a day.
void MDIOstrel::copiaDelDia()
{
    if (std::exchange(m_algoGuardado, false))
        procedimiento(this, [this] { servicioCopia(false, winId())->CrearBackupDelDia(); });
}

void MDIOstrel::buscarSiSeAplazo()
{
    if (unico::la<cActOnline>().ActOnline() == -1)
        QTimer::singleShot(0, this, [this] { buscarActualizacion(this); });
}

void MDIOstrel::alCambiarDatos()
{
    m_recientes->cargar();
    actualizarEstados();
}

void MDIOstrel::actualizarEstados()
{
    if (completarSesion())
        CambiarIdioma();
    Situacion situacion;
    situacion.editando = m_pantallas->editando();
    situacion.trabajando = m_pantallas->trabajando();
    try {
        auto &entrada = unico::la<CEntrada>();
        entrada.InicializarContadores();
        situacion.hayDeclarantes = entrada.NUMDECLA() >= 1;
        situacion.motivoSinDeclarantes = msj(Msj::SinDeclarantes);
    } catch (...) {
        // opening a menu is no moment for a message box: the entries say why they are disabled
        situacion.motivoSinDeclarantes = textoFalloActual();
    }
    m_menus->aplicar(situacion);
    m_recientes->aplicar(situacion.editando ? msj(Msj::DeshabilitadoEnEdicion) : QString());
}
