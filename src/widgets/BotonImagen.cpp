#include "widgets/BotonImagen.h"

#include <QEvent>
#include <QPushButton>

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
