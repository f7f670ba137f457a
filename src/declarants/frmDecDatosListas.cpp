// The pick lists of the declarant form: opening, closing, keys.

#include "core/Unico.h"
#include "declarants/FichaDeclarante.h"
#include "declarants/frmDecDatos.h"
#include "widgets/BarraBotones.h"
#include "widgets/CajaTexto.h"
#include "widgets/SelectorLista.h"

#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

static constexpr int AltoMinimo = 220;
static constexpr int AnchoMinimo = 320;

const frmDecDatos::Lista *frmDecDatos::listaAbierta() const
{
    const auto abierta = std::ranges::find_if(
        m_listas, [this](const Lista &l) { return l.selector->isVisibleTo(this); });
    return abierta == m_listas.end() ? nullptr : abierta;
}

/// Under the code, down to the foot of the form; higher up where that leaves too little room.
void frmDecDatos::abrirLista(const Lista &lista)
{
    if (listaAbierta())
        return;
    const auto *caja = m_ficha->caja(lista.codigo);
    const QPoint bajo = caja->mapTo(this, QPoint(0, caja->height() + 2));
    const int fondo = height() - layout()->contentsMargins().bottom();
    const int arriba = std::max(0, std::min(bajo.y(), fondo - AltoMinimo));
    lista.selector->setGeometry(bajo.x(), arriba, std::min(AnchoMinimo, width() - bajo.x()),
                                fondo - arriba);
    // opened first, so that disabling the form finds the focus gone and moves it nowhere
    lista.selector->abrir(cajas::presentar(lista.codigo, unico::la<cDecDatos>()));
    m_ficha->setEnabled(false);
    m_botones->setEnabled(false);
    m_recienAbierta = true;
    QTimer::singleShot(0, this, [this] { m_recienAbierta = false; });
}

void frmDecDatos::cerrarLista(cajas::Cual enfocado)
{
    const bool elegido = std::ranges::none_of(
        m_listas, [enfocado](const Lista &l) { return l.codigo == enfocado; });
    m_ficha->setEnabled(true);
    m_botones->setEnabled(true);
    if (elegido)
        PresentaDatos();
    m_ficha->caja(enfocado)->setFocus(Qt::OtherFocusReason);
}

void frmDecDatos::keyPressEvent(QKeyEvent *evento)
{
    const bool pide = evento->key() == Qt::Key_F4
        || (evento->key() == Qt::Key_Down && evento->modifiers() == Qt::AltModifier);
    if (pide) {
        for (const auto &lista : m_listas)
            if (focusWidget() == m_ficha->caja(lista.codigo) && lista.boton->isEnabled())
                lista.boton->click();
        return;
    }
    const bool enCaja = qobject_cast<CajaTexto *>(focusWidget()) != nullptr;
    PantallaBase::keyPressEvent(evento);
    // Enter goes from box to box; Tab also stops at the buttons
    const auto esBoton = [this](const Lista &l) { return focusWidget() == l.boton; };
    if (enCaja && std::ranges::any_of(m_listas, esBoton))
        focusNextChild();
}

/// A click on the disabled form gives the list up, but not the one that opened it by leaving a box.
void frmDecDatos::mousePressEvent(QMouseEvent *evento)
{
    if (m_recienAbierta)
        return;
    if (const auto *lista = listaAbierta()) {
        lista->selector->hide();
        cerrarLista(lista->codigo);
        return;
    }
    PantallaBase::mousePressEvent(evento);
}
