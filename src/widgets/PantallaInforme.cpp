#include "widgets/PantallaInforme.h"

#include "widgets/Disposicion.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

PantallaInforme::PantallaInforme(const QString &nombre, Icono dibujo, int lado,
                                 const QString &boton, QWidget *padre)
    : PantallaBase(nombre, padre)
    , m_cmdCerrar(new QPushButton(this))
    , m_columna(new QVBoxLayout)
{
    m_cmdCerrar->setObjectName(boton);
    m_cmdCerrar->setFocus();
    alPulsar(m_cmdCerrar, [this] { cerrarA(Pantalla::Ninguna); });
    auto *emblema = new QLabel(this);
    emblema->setPixmap(icono(dibujo).pixmap(QSize(lado, lado), devicePixelRatioF()));

    auto *fila = new QHBoxLayout;
    fila->setSpacing(22);
    fila->addWidget(emblema, 0, Qt::AlignTop);
    m_columna->setSpacing(9);
    fila->addLayout(m_columna, 1);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenDialogo);
    todo->setSpacing(16);
    todo->addLayout(fila, 1);
    todo->addWidget(m_cmdCerrar, 0, Qt::AlignRight);
}

QLabel *PantallaInforme::anadirTexto(const QString &nombre)
{
    auto *texto = nuevaEtiqueta(nombre, this);
    anadir(texto);
    return texto;
}

void PantallaInforme::anadir(QWidget *pieza)
{
    m_columna->addWidget(pieza);
}
