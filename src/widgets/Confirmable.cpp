#include "widgets/Confirmable.h"

#include "widgets/PantallaBase.h"

#include <QApplication>

bool focoDePaso(Qt::FocusReason motivo)
{
    return motivo == Qt::PopupFocusReason || motivo == Qt::ActiveWindowFocusReason;
}

bool confirmaAlSalir(Qt::FocusReason motivo)
{
    const auto *destino = QApplication::focusWidget();
    const bool abandona
        = motivo == Qt::MouseFocusReason && destino && destino->property(NoConfirma).toBool();
    return !abandona && !focoDePaso(motivo);
}

bool abandonada(QWidget *campo)
{
    const auto *pantalla = pantallaDe(campo);
    return pantalla && !campo->isVisibleTo(pantalla);
}

bool recuperarFoco(QWidget *campo, Qt::FocusReason motivo)
{
    if (campo->isVisible())
        campo->setFocus(motivo);
    return campo->isVisible();
}
