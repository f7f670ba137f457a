#pragma once

#include "campaign/cImportarDeclaraciones.h"
#include "widgets/PantallaProceso.h"

class BarraBotones;
class ModeloHoja;
class QLineEdit;
class QTableView;

/// Returns from a sheet: every row is looked at before anything is stored; the user stores those
/// that stay ticked.
class FrmImportarDeclaraciones : public PantallaProceso
{
    Q_OBJECT

public:
    explicit FrmImportarDeclaraciones(QWidget *padre = nullptr);

    void Anadir_captions() override;
    QSize sizeHint() const override;

protected:
    void alCambiarIdioma() override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

private:
    void prepararGrid();
    void disponer();
    void conectar();
    void elegirFichero();
    void leer(const QString &ruta);
    void guardar();
    void guardarRechazadas();
    void PresentaDatos();

    cImportarDeclaraciones m_hoja;
    QLabel *m_lblFichero;
    QLineEdit *m_txtFichero;
    QPushButton *m_cmdFichero;
    QLabel *m_lblGuia;
    QLabel *m_lblArrastre;
    QTableView *m_flxHoja;
    ModeloHoja *m_modelo;
    QLabel *m_lblResumen;
    BarraBotones *m_botones;
    QPushButton *m_cmdGuardar;
    QPushButton *m_cmdRechazadas;
    QPushButton *m_cmdCancelar;
};
