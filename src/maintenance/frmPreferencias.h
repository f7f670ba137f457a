#pragma once

#include "widgets/PantallaBase.h"

class QCheckBox;
class QLabel;
class QRadioButton;

/// Language of the program and whether it looks for a newer version at every start. Nothing is
/// saved before it is accepted.
class frmPreferencias : public PantallaBase
{
    Q_OBJECT

public:
    explicit frmPreferencias(QWidget *padre = nullptr);
    ~frmPreferencias() override;

    /// Whether the screen is open.
    static bool abierta();

    void Anadir_captions() override;

protected:
    void closeEvent(QCloseEvent *evento) override;

private:
    QPushButton *boton(const QString &nombre);
    void disponer();
    void aceptar();
    void buscarAhora();

    QLabel *m_lblIdioma, *m_lblActualizaciones;
    QRadioButton *m_optCast, *m_optEusk;
    QCheckBox *m_chkActOnline;
    QPushButton *m_lblActAhora, *m_cmdAceptar, *m_cmdCancelar;
    bool m_buscando = false;
};
