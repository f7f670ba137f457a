#pragma once

#include "support/ConductorMensajes.h"
#include "support/Entorno.h"
#include "support/Manos.h"
#include "widgets/PantallaBase.h"

#include <QApplication>

#include <optional>

/// A screen in front of the real data service, with the hands and the answers of its user.
template <class T> struct PantallaAbierta
{
    void abrir()
    {
        siguiente.reset();
        pantalla = std::make_unique<T>();
        manos.emplace(*pantalla);
        QObject::connect(pantalla.get(), &PantallaBase::mostrar, pantalla.get(),
                         [this](Pantalla pedida) { siguiente = pedida; });
        pantalla->resize(pantalla->sizeHint());
        pantalla->show();
        QApplication::setActiveWindow(pantalla.get());
    }
    void responderYPulsar(QMessageBox::StandardButton respuesta, const char *boton)
    {
        mensajes.responder(respuesta);
        manos->pulsar(boton);
        // the message took the activation with it
        if (pantalla->isVisible())
            QApplication::setActiveWindow(pantalla.get());
    }
    /// The same; the text of the one message that came.
    QString aviso(const char *boton, QMessageBox::StandardButton respuesta = QMessageBox::Ok)
    {
        responderYPulsar(respuesta, boton);
        return mensajes.texto();
    }

    Entorno entorno;
    ConductorMensajes mensajes;
    std::unique_ptr<T> pantalla;
    std::optional<Manos> manos;
    std::optional<Pantalla> siguiente; ///< what the screen asked for
};
