#pragma once

#include "declarations/PantallaDeclaracion.h"

class QCheckBox;
class QGridLayout;
class QLabel;

/// Entry of one model 430 return, over the shared cDatos430 record and header.
class FrmDatos430 : public PantallaDeclaracion
{
    Q_OBJECT

public:
    explicit FrmDatos430(QWidget *padre = nullptr);

    bool modificada() const override;
    void Anadir_captions() override;

protected:
    void PresentaDatos() override;
    qint32 csdeRegistro() const override;
    void showEvent(QShowEvent *evento) override;

private:
    struct Linea
    {
        QLabel *titulo;
        CajaImporte *base, *tipo, *cuota; ///< null where the line has no such box
    };

    void crearCajas();
    void disponer();
    bool ValidarCampos();
    qint32 GuardarDeclaracion();
    void alMarcar();
    void aceptar();

    QLabel *m_columnas[3];
    Linea m_lineas[3];
    QCheckBox *m_chkrect;
    QPushButton *m_cmdAceptar;
    QPushButton *m_cmdCancelar;
};
