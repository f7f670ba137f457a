#include "app/Menus.h"

#include "app/BarraHerramientas.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

static QString nombreDe(const char *nombre)
{
    return QString::fromLatin1(nombre);
}

void habilitar(QAction *accion, const QString &motivo, const QString &pista)
{
    accion->setEnabled(motivo.isEmpty());
    accion->setStatusTip(motivo.isEmpty() ? pista : motivo);
    accion->setToolTip(motivo.isEmpty() ? pista : motivo);
}

static QString motivoContra(const EntradaMenu &entrada, const Situacion &situacion)
{
    if (std::holds_alternative<std::monostate>(entrada.destino))
        return msj(Msj::ProximaVersion);
    if (situacion.trabajando)
        return msj(Msj::DeshabilitadoEnProceso);
    if ((entrada.condiciones & SinEdicion) && situacion.editando)
        return msj(Msj::DeshabilitadoEnEdicion);
    if ((entrada.condiciones & ConDeclarantes) && !situacion.hayDeclarantes)
        return situacion.motivoSinDeclarantes;
    return {};
}

Menus::Menus(QMainWindow *ventana)
    : QObject(ventana)
{
    crearMenus(ventana);
    crearBarra(ventana);
    Anadir_captions();
}

void Menus::crearMenus(QMainWindow *ventana)
{
    for (const auto &datos : tablaMenus()) {
        auto *menu = ventana->menuBar()->addMenu(QString());
        menu->setObjectName(nombreDe(datos.nombre));
        menu->setToolTipsVisible(true);
        m_desplegables.append(menu);
    }
    for (const auto &entrada : tablaEntradas()) {
        auto *menu = m_desplegables.at(entrada.menu);
        if (entrada.trasSeparador)
            menu->addSeparator();
        auto *accion = menu->addAction(icono(entrada.icono), QString());
        accion->setObjectName(nombreDe(entrada.nombre));
        accion->setShortcut(QKeySequence(nombreDe(entrada.atajo)));
        connect(accion, &QAction::triggered, this,
                [this, destino = entrada.destino] { Q_EMIT pedido(destino); });
        m_acciones.insert(QLatin1StringView(entrada.nombre), accion);
    }
}

void Menus::crearBarra(QMainWindow *ventana)
{
    m_barra = new BarraHerramientas(ventana);
    ventana->addToolBar(m_barra);
    m_barra->setObjectName(u"barra"_s);
    m_barra->setMovable(false);
    m_barra->setContextMenuPolicy(Qt::PreventContextMenu);
    m_barra->setIconSize({32, 32});
    for (const auto &entrada : tablaBarra()) {
        if (entrada.trasSeparador)
            m_barra->addSeparator();
        auto *delMenu = m_acciones.value(QLatin1StringView(entrada.entrada));
        auto *accion = m_barra->addAction(delMenu->icon(), QString());
        accion->setObjectName(nombreDe(entrada.nombre));
        m_barra->widgetForAction(accion)->setObjectName(accion->objectName());
        connect(accion, &QAction::triggered, delMenu, &QAction::trigger);
        connect(delMenu, &QAction::enabledChanged, accion, &QAction::setEnabled);
    }
}

void Menus::Anadir_captions()
{
    for (qsizetype i = 0; i < m_desplegables.size(); ++i)
        m_desplegables.at(i)->setTitle(msj(tablaMenus()[static_cast<std::size_t>(i)].texto));
    for (const auto &entrada : tablaEntradas())
        m_acciones.value(QLatin1StringView(entrada.nombre))->setText(msj(entrada.texto));
    m_barra->setWindowTitle(msj(Msj::AccesibleBarraHerramientas));
    m_barra->setAccessibleName(msj(Msj::AccesibleBarraHerramientas));
    for (const auto &entrada : tablaBarra())
        m_barra->findChild<QAction *>(nombreDe(entrada.nombre))->setText(msj(entrada.texto));
    m_barra->acomodar();
    aplicar(m_situacion);
}

void Menus::aplicar(const Situacion &situacion)
{
    m_situacion = situacion;
    for (const auto &entrada : tablaEntradas()) {
        habilitar(m_acciones.value(QLatin1StringView(entrada.nombre)),
                  motivoContra(entrada, situacion), msj(entrada.pista));
    }
    for (const auto &entrada : tablaBarra()) {
        auto *accion = m_barra->findChild<QAction *>(nombreDe(entrada.nombre));
        const auto *delMenu = m_acciones.value(QLatin1StringView(entrada.entrada));
        accion->setStatusTip(delMenu->statusTip());
        accion->setToolTip(delMenu->isEnabled() ? msj(entrada.texto) : delMenu->toolTip());
    }
}
