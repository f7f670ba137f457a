#pragma once

#include "core/Textos.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;

/// The choice of the language at the first start. Its texts are in both languages at once.
class FrmIdioma : public QDialog
{
    Q_OBJECT

public:
    explicit FrmIdioma(QWidget *padre = nullptr);

protected:
    void keyPressEvent(QKeyEvent *evento) override;

private:
    QPushButton *boton(const char *nombre, Msj texto, const QString &codigo);
    QLayout *cabecera();
    void disponer();
    void cargar();
    void guardarActOnline(bool activa);
    void elegir(const QString &codigo);

    QPushButton *m_cmdcastellano;
    QPushButton *m_cmdeuskera;
    QCheckBox *m_chkActOnline;
    QLabel *m_lblAct;
};
