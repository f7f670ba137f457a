#pragma once

#include "widgets/PantallaBase.h"

class QLabel;

/// The about box: title and version of the program.
class frmAbout : public PantallaBase
{
    Q_OBJECT

public:
    explicit frmAbout(QWidget *padre = nullptr);

    void Anadir_captions() override;

private:
    QLabel *m_lblTitulo;
    QLabel *m_lblTexto;
    QLabel *m_lblVersion;
    QLabel *m_lblDiputacion;
    QPushButton *m_cmdAceptar;
};
