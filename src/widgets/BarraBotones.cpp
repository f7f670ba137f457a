#include "widgets/BarraBotones.h"

#include "core/Textos.h"
#include "widgets/BotonImagen.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

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
    auto *boton = new QPushButton(this);
    boton->setObjectName(nombre);
    boton->setMinimumWidth(110);
    m_fila->addSpacing(8);
    if (!imagen.isEmpty())
        m_fila->addWidget(new BotonImagen(imagen, icono, boton));
    m_fila->addWidget(boton);
    return boton;
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
