#pragma once

#include "widgets/PantallaInforme.h"

class QCheckBox;

/// Says in both languages why it is not known whether a newer version is published: what SitAct of
/// cActOnline says.
class FrmSinConexion : public PantallaInforme
{
    Q_OBJECT

public:
    explicit FrmSinConexion(QWidget *padre = nullptr);

    void Anadir_captions() override;

private:
    QLabel *m_lblTituloE, *m_lblTituloC, *m_lblMensaje, *m_lblPista;
    QCheckBox *m_chkNoPreg;
};
