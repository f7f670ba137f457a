#pragma once

#include <QString>

/// What the data service has to show the user. The program hands an implementation to
/// registrarServidor(); the service itself never opens a window.
class Dialogos
{
public:
    Dialogos() = default;
    virtual ~Dialogos() = default;
    Dialogos(const Dialogos &) = delete;
    Dialogos &operator=(const Dialogos &) = delete;

    /// `padre`: native handle of the window that owns what is opened, 0 for none.
    virtual void abrirDireccion(const QString &direccion, quintptr padre) = 0;
    virtual void informar(const QString &texto, quintptr padre) = 0;
};
