#pragma once

#include "widgets/Iconos.h"
#include "widgets/PantallaBase.h"

class QLabel;
class QPushButton;
class QVBoxLayout;

/// Base of the dialogues that tell something: a picture, texts beside it one under the other, and a
/// button that closes.
class PantallaInforme : public PantallaBase
{
    Q_OBJECT

protected:
    /// `lado` of the picture, in pixels; `boton` names the button, whose caption is the screen's.
    PantallaInforme(const QString &nombre, Icono dibujo, int lado, const QString &boton,
                    QWidget *padre);

    /// Puts a text, or another piece, under what is there.
    QLabel *anadirTexto(const QString &nombre);
    void anadir(QWidget *pieza);

    QPushButton *m_cmdCerrar;

private:
    QVBoxLayout *m_columna;
};
