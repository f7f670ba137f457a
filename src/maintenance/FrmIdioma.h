#pragma once

#include "core/Textos.h"
#include "widgets/PantallaBase.h"

class QCheckBox;
class QLabel;

/// The choice of the language at the first start. Its texts are in both languages at once.
class FrmIdioma : public PantallaBase
{
    Q_OBJECT

public:
    explicit FrmIdioma(QWidget *padre = nullptr);

    void Anadir_captions() override;

protected:
    /// Enter goes on to the next control and presses nothing: the choice is made on purpose.
    void keyPressEvent(QKeyEvent *evento) override;

private:
    QPushButton *boton(const char *nombre, Msj texto, const QString &codigo);
    QLayout *cabecera();
    void disponer();
    void cargar();
    void guardarActOnline(bool activa);
    void elegir(const QString &codigo);
    void buscar();

    QPushButton *m_cmdcastellano;
    QPushButton *m_cmdeuskera;
    QCheckBox *m_chkActOnline;
    QLabel *m_lblAct;
};
