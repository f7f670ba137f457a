#pragma once

#include "widgets/PantallaBase.h"

class QCheckBox;
class QLabel;
class QPushButton;

/// Says in both languages why it is not known whether a newer version is published: what SitAct of
/// cActOnline says.
class FrmSinConexion : public PantallaBase
{
    Q_OBJECT

public:
    explicit FrmSinConexion(QWidget *padre = nullptr);

    void Anadir_captions() override;

private:
    void disponer();

    QLabel *m_lblTituloC, *m_lblTituloE, *m_lblMensaje, *m_lblPista;
    QCheckBox *m_chkNoPreg;
    QPushButton *m_cmdContinuar;
};
