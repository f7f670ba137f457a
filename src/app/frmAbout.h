#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

/// The about box: title and version of the program.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    explicit frmAbout(QWidget *padre = nullptr);

protected:
    void changeEvent(QEvent *evento) override;

private:
    void Anadir_captions();

    QLabel *m_lblTitulo;
    QLabel *m_lblTexto;
    QLabel *m_lblVersion;
    QLabel *m_lblDiputacion;
    QPushButton *m_cmdAceptar;
};
