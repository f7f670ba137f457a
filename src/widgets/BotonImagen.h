#pragma once

#include "widgets/Iconos.h"

#include <QToolButton>

class QPushButton;

/// Picture twin of a button: the same action, enabled state and tip. It is no tab stop, as the
/// button beside it is.
class BotonImagen : public QToolButton
{
    Q_OBJECT

public:
    BotonImagen(const QString &nombre, Icono icono, QPushButton *gemelo);

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void copiarEstado();

    QPushButton *m_gemelo;
};
