#pragma once

#include "declarations/Clases480.h"
#include "declarations/PantallaDeclaracion.h"

class QGridLayout;
class cDatos480;

/// One of the three pages of a 480: buttons to the pages beside it, numbered boxes.
class Pantalla480 : public PantallaDeclaracion
{
    Q_OBJECT

public:
    bool modificada() const override;
    /// The same for the three pages.
    QSize sizeHint() const override;

protected:
    /// `anterior` and `siguiente`: the pages beside this one, Pantalla::Ninguna where there is
    /// none.
    Pantalla480(const QString &nombre, Msj titulo, Pantalla anterior, Pantalla siguiente,
                QWidget *padre);

    static cDatos480 &registro();

    /// Adds a box with its number in front of it. One to fill in marks the record as modified.
    CajaImporte *ponerCasilla(QGridLayout *rejilla, Casilla480 casilla, int fila, int columna);
    /// The same for the number and a box of any kind.
    void ponerNumerada(QGridLayout *rejilla, const QString &numero, QWidget *caja, int fila,
                       int columna);
    void Anadir_captions() override;
    qint32 csdeRegistro() const override;
    void alConservar() override;

    QPushButton *m_cmdAceptar = nullptr; ///< on the last page

private:
    Msj m_titulo;
    QPushButton *m_cmdanterior = nullptr;
    QPushButton *m_cmdSiguiente = nullptr;
    QPushButton *m_cmdCancelar = nullptr;
};
