#pragma once

#include "declarations/PantallaDeclaracion.h"

#include <Msj.h>

class cDatos480;

/// One of the three pages of a 480: buttons to the pages beside it, boxes by their numbers.
class Pantalla480 : public PantallaDeclaracion
{
    Q_OBJECT

protected:
    /// `anterior` and `siguiente`: the pages beside this one, Pantalla::Ninguna where there is
    /// none.
    Pantalla480(const QString &nombre, Msj titulo, Pantalla anterior, Pantalla siguiente,
                QWidget *padre);

    static cDatos480 &registro();

    /// The box `numero` as one to fill in; its change marks the record as modified.
    CajaImporte *cajaNumero(const QString &nombre, int numero);
    void Anadir_captions() override;
    qint32 csdeRegistro() const override;

    QPushButton *m_cmdAceptar = nullptr; ///< on the last page

private:
    Msj m_titulo;
    QPushButton *m_cmdanterior = nullptr;
    QPushButton *m_cmdSiguiente = nullptr;
    QPushButton *m_cmdCancelar = nullptr;
};
