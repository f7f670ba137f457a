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

    /// Leaves by the button so called, by "Escape", by an access key ("Alt+A") or by the "frame".
    void salir(const char *manera) const
    {
        if (qstrcmp(manera, "frame") == 0)
            pantalla->close();
        else if (qstrcmp(manera, "Escape") == 0)
            manos->tecla(Qt::Key_Escape);
        else if (qstrncmp(manera, "Alt+", 4) == 0)
            manos->tecla(Qt::Key(manera[4]), Qt::AltModifier);
        else
            manos->pulsar(manera);
    }

    Entorno entorno;
    ConductorMensajes mensajes;
    std::unique_ptr<T> pantalla;
    std::optional<Manos> manos;
    std::optional<Pantalla> siguiente; ///< what the screen asked for
};
