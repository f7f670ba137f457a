#include "widgets/BarraBotones.h"

#include "core/Textos.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

BotonImagen::BotonImagen(const QString &nombre, Icono cual, QPushButton *gemelo)
    : QToolButton(gemelo->parentWidget())
    , m_gemelo(gemelo)
{
    setObjectName(nombre);
    setIcon(icono(cual));
    setIconSize({24, 24});
    setAutoRaise(true);
    // a click goes where one on the twin goes: with no focus at all, it would go to the frame
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(gemelo);
    connect(this, &QToolButton::clicked, gemelo, &QPushButton::click);
    gemelo->installEventFilter(this);
    copiarEstado();
}

void BotonImagen::copiarEstado()
{
    setEnabled(m_gemelo->isEnabledTo(parentWidget()));
    setVisible(m_gemelo->isVisibleTo(parentWidget()));
    setToolTip(m_gemelo->toolTip());
    setAccessibleName(m_gemelo->text().remove(u'&').trimmed());
}

bool BotonImagen::eventFilter(QObject *objeto, QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::EnabledChange:
    case QEvent::ToolTipChange:
    case QEvent::LanguageChange:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        copiarEstado();
        break;
    default:
        break;
    }
    return QToolButton::eventFilter(objeto, evento);
}

namespace {

/// As wide as its neighbours, and never narrower than its text.
class BotonAncho : public QPushButton
{
public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override { return QPushButton::sizeHint().expandedTo({110, 0}); }
};

} // namespace

BarraBotones::BarraBotones(const QString &nombre, QWidget *padre)
    : QWidget(padre)
    , m_fila(new QHBoxLayout(this))
{
    setObjectName(nombre);
    m_fila->setContentsMargins(0, 0, 0, 0);
    m_fila->addStretch(1);
}

QPushButton *BarraBotones::anadir(const QString &nombre, const QString &imagen, Icono icono)
{
    auto *boton = new BotonAncho(this);
    boton->setObjectName(nombre);
    m_fila->addSpacing(8);
    if (!imagen.isEmpty())
        m_fila->addWidget(new BotonImagen(imagen, icono, boton));
    m_fila->addWidget(boton);
    return boton;
}

void rotular(QPushButton *boton, Msj texto, Msj pista)
{
    boton->setText(msj(texto));
    boton->setToolTip(msj(pista));
}

void captionsAceptarCancelar(QPushButton *aceptar, QPushButton *cancelar)
{
    const QString centrado = u"   "_s;
    if (aceptar) {
        aceptar->setText(centrado + msj(Msj::BotonAceptar) + centrado);
        aceptar->setToolTip(msj(Msj::PistaAceptar));
    }
    cancelar->setText(centrado + msj(Msj::BotonCancelar) + centrado);
    cancelar->setToolTip(msj(Msj::PistaCancelar));
}
