#include "app/Pantallas.h"

#include "app/MarcoInterior.h"

#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>

#include <algorithm>

Pantallas::Pantallas(QMdiArea *area, QWidget *ventana)
    : QObject(ventana)
    , m_area(area)
    , m_ventana(ventana)
{
    connect(this, &Pantallas::cambiadas, this, &Pantallas::suspenderOtras);
    connect(m_area, &QMdiArea::subWindowActivated, this, &Pantallas::devolverDelante);
}

PantallaBase *Pantallas::pantalla(Pantalla cual) const
{
    auto *abierta = m_abiertas.value(cual);
    // one that is closing is hidden, and deleted soon
    return abierta && !abierta->isHidden() ? abierta : nullptr;
}

bool Pantallas::abrir(Pantalla cual)
{
    if (m_terminado || cual == Pantalla::Ninguna)
        return false;
    const auto *datos = datosPantalla(cual);
    const bool abierta = procedimiento(m_ventana, [&] {
        if (datos->caduca && datos->caduca())
            cerrar(cual);
        if (auto *anterior = pantalla(cual))
            traerDelante(anterior);
        else
            mostrarNueva(*datos);
    });
    Q_EMIT cambiadas();
    return abierta;
}

/// `saliente` closes as soon as the other one is there: it has handed its record back.
bool Pantallas::abrirTras(PantallaBase *saliente, Pantalla siguiente)
{
    m_saliente = saliente;
    const bool abierta = abrir(siguiente);
    m_saliente = nullptr;
    if (!abierta)
        suspenderOtras();
    return abierta;
}

void Pantallas::traerDelante(PantallaBase *abierta)
{
    if (!abierta->edita())
        abierta->Actualizar();
    mostrarDelante(abierta);
}

void Pantallas::mostrarDelante(PantallaBase *abierta)
{
    if (auto *marco = qobject_cast<QMdiSubWindow *>(abierta->parentWidget())) {
        if (marco->isMinimized())
            marco->showNormal();
        m_area->setActiveSubWindow(marco);
    } else {
        abierta->activateWindow();
    }
}

void Pantallas::mostrarNueva(const DatosPantalla &datos)
{
    const bool modal = datos.marco == DatosPantalla::Modal;
    auto *nueva = datos.crear(modal ? m_ventana : nullptr);
    m_abiertas.insert(datos.cual, nueva);
    // after the screen's own work is over, so that none is opened in the middle of a closing
    connect(nueva, &PantallaBase::mostrar, this, &Pantallas::abrir, Qt::QueuedConnection);
    nueva->quienAbre([this, nueva](Pantalla siguiente) { return abrirTras(nueva, siguiente); });
    connect(nueva, &PantallaBase::dicho, this, &Pantallas::dicho);
    connect(nueva, &PantallaBase::cambiaEdicion, this, &Pantallas::cambiadas);
    connect(nueva, &PantallaBase::datosCambiados, this,
            [this, nueva](qint32 csco) { avisarCambio(nueva, csco); });
    connect(nueva, &QObject::destroyed, this, [this, nueva] { olvidar(nueva); });
    if (modal) {
        nueva->hacerModal();
        nueva->setAttribute(Qt::WA_DeleteOnClose);
        nueva->show();
    } else {
        enmarcar(nueva, datos.marco == DatosPantalla::Amplio);
    }
}

void Pantallas::enmarcar(PantallaBase *nueva, bool amplia)
{
    const auto *activo = m_area->activeSubWindow();
    const auto *activa = activo ? qobject_cast<PantallaBase *>(activo->widget()) : nullptr;
    auto *marco = new MarcoInterior(nueva);
    m_area->addSubWindow(marco);
    // the pages of one record follow each other at one place
    if (nueva->edita() && activa && activa->edita())
        marco->mostrarEnLugarDe(*activo);
    else
        marco->mostrarEn(m_area->viewport()->rect(), amplia);
}

void Pantallas::cerrar(Pantalla cual)
{
    auto *abierta = pantalla(cual);
    if (!abierta)
        return;
    abierta->disconnect(this);
    abierta->quienAbre({});
    abierta->abandonar();
    m_abiertas.remove(cual);
    Q_EMIT cambiadas();
}

void Pantallas::olvidar(const PantallaBase *desaparecida)
{
    m_abiertas.removeIf([=](const auto &entrada) { return entrada.value() == desaparecida; });
    m_focos.remove(desaparecida);
    Q_EMIT cambiadas();
}

void Pantallas::enfocar()
{
    const auto *delante = m_area->activeSubWindow();
    if (auto *campo = delante ? delante->widget()->focusWidget() : nullptr)
        campo->setFocus(Qt::ActiveWindowFocusReason);
}

bool Pantallas::puedenCerrarse()
{
    return std::ranges::all_of(m_abiertas.keys(), [this](Pantalla cual) {
        auto *abierta = pantalla(cual);
        if (!abierta || !abierta->perderia())
            return true;
        mostrarDelante(abierta);
        return abierta->aceptaCerrarse();
    });
}

void Pantallas::terminar()
{
    m_terminado = true;
    // screens still on their way out must not reach a window that is going too
    blockSignals(true);
    for (const Pantalla cual : m_abiertas.keys())
        cerrar(cual);
    for (auto *cerrandose : std::as_const(m_abiertas))
        cerrandose->disconnect(this);
    m_abiertas.clear();
}

bool Pantallas::alguna(bool (PantallaBase::*condicion)() const) const
{
    return std::any_of(m_abiertas.keyBegin(), m_abiertas.keyEnd(), [&](Pantalla cual) {
        const auto *abierta = pantalla(cual);
        return abierta && abierta != m_saliente && (abierta->*condicion)();
    });
}

bool Pantallas::editando() const
{
    return alguna(&PantallaBase::edita);
}

bool Pantallas::trabajando() const
{
    return alguna(&PantallaBase::trabaja);
}

/// A screen left behind could rewrite the record that another one is editing.
void Pantallas::suspenderOtras()
{
    const bool editan = editando();
    for (const Pantalla cual : m_abiertas.keys()) {
        auto *abierta = pantalla(cual);
        if (!abierta || abierta->isModal())
            continue;
        const bool espera = editan && !abierta->edita();
        if (espera && abierta->isEnabled())
            m_focos.insert(abierta, abierta->focusWidget());
        abierta->suspender(espera);
    }
}

/// A press on a screen that waits must not hide the one that it waits for. One that has waited gets
/// back the focus that it lost while it was disabled.
void Pantallas::devolverDelante(const QMdiSubWindow *pulsada)
{
    const auto *contenido = pulsada ? pulsada->widget() : nullptr;
    const bool conRaton = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (contenido && contenido->isEnabled()) {
        const auto foco = m_focos.take(contenido);
        if (foco && !conRaton)
            QTimer::singleShot(0, foco, [foco] { foco->setFocus(Qt::ActiveWindowFocusReason); });
        return;
    }
    if (!contenido || !conRaton)
        return;
    for (const Pantalla cual : m_abiertas.keys()) {
        auto *abierta = pantalla(cual);
        if (abierta && abierta->edita())
            QTimer::singleShot(0, abierta, [=, this] { mostrarDelante(abierta); });
    }
}

void Pantallas::avisarCambio(const PantallaBase *autora, qint32 csco)
{
    for (const Pantalla cual : m_abiertas.keys()) {
        auto *otra = pantalla(cual);
        if (otra && otra != autora && !otra->edita())
            procedimiento(m_ventana, [=] {
                csco == 0 ? otra->Actualizar() : otra->ActualizarDeclarante(csco);
            });
    }
    Q_EMIT datosCambiados();
}
