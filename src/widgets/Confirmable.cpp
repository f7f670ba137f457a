#include "widgets/Confirmable.h"

#include "widgets/PantallaBase.h"

#include <QApplication>
#include <QLineEdit>

bool focoDePaso(Qt::FocusReason motivo)
{
    return motivo == Qt::PopupFocusReason || motivo == Qt::ActiveWindowFocusReason;
}

bool confirmaAlSalir(Qt::FocusReason motivo)
{
    const auto *destino = QApplication::focusWidget();
    // a mark takes the focus for no reason of its own when its access key is pressed
    const bool pulsado = motivo == Qt::MouseFocusReason || motivo == Qt::OtherFocusReason;
    const bool abandona = pulsado && destino && destino->property(NoConfirma).toBool();
    return !abandona && !focoDePaso(motivo);
}

bool abandonada(QWidget *campo)
{
    const auto *pantalla = pantallaDe(campo);
    return pantalla && !campo->isVisibleTo(pantalla);
}

bool recuperarFoco(QWidget *campo, Qt::FocusReason motivo)
{
    if (!campo->isVisible())
        return false;
    campo->setFocus(motivo);
    // the window that comes back from a message gives the focus without saying that it is entered
    if (auto *caja = qobject_cast<QLineEdit *>(campo))
        caja->selectAll();
    return true;
}
