#pragma once

#include "core/Textos.h"
#include "widgets/Iconos.h"

#include <QToolButton>
#include <QWidget>

class QHBoxLayout;
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

/// The row of buttons at the foot of a screen, each with its picture twin beside it.
class BarraBotones : public QWidget
{
    Q_OBJECT

public:
    explicit BarraBotones(const QString &nombre, QWidget *padre = nullptr);

    /// Adds a button called `boton` and, when `imagen` is not empty, its twin called so.
    QPushButton *anadir(const QString &boton, const QString &imagen, Icono icono);

private:
    QHBoxLayout *m_fila;
};

/// Caption and tip of a button.
void rotular(QPushButton *boton, Msj texto, Msj pista);

/// Captions and tips of the two buttons that every entry screen has.
void captionsAceptarCancelar(QPushButton *aceptar, QPushButton *cancelar);
