#include "widgets/Procedimiento.h"

#include "core/Textos.h"
#include "widgets/Mensajes.h"

#include <QApplication>
#include <QWidget>

PunteroOcupado::PunteroOcupado()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

PunteroOcupado::~PunteroOcupado()
{
    QApplication::restoreOverrideCursor();
}

void avisarFallo(QWidget *pantalla, const QString &motivo)
{
    const QString titulo = pantalla ? pantalla->windowTitle() : msj(Msj::TituloVentana);
    mensajes::aviso(pantalla, titulo, msj(Msj::NoSePudoHacer, motivo));
}
