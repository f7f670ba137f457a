#pragma once

#include "widgets/PantallaInforme.h"

/// The about box: title and version of the program.
class frmAbout : public PantallaInforme
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
};
