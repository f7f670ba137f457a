#pragma once

#include "campaign/cPendientes.h"
#include "widgets/PantallaBase.h"

class BarraBotones;
class CajaTexto;
class ListaDesplegable;
class QTableView;
class cUtilidadesGrid;
template <class Fila> class ModeloFilas;

/// How every declarant stands with one month's or year's return. It stays open behind the summary
/// that it opens.
class FrmPendientes : public PantallaBase
{
    Q_OBJECT

public:
    explicit FrmPendientes(QWidget *padre = nullptr);

    void Anadir_captions() override;
    void Actualizar() override;
    void ActualizarDeclarante(qint32 csco) override;
    QSize sizeHint() const override;

protected:
    void alCambiarIdioma() override;
    void keyPressEvent(QKeyEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

private:
    void prepararGrid();
    void disponer();
    void conectar();
    void cargarListas();
    bool tomarEjercicio();
    void tomarPeriodo(int posicion);
    bool mirar(qint16 ejercicio, int mes);
    void cargar();
    void filtrar();
    void PresentaNumeros();
    QString motivoVacio() const;
    void seleccionarDeclarante(qint32 csco);
    void alSeleccionar();
    const DeclarantePendiente *filaActual() const;
    void abrir();
    void guardarPlantilla();
    QList<int> filasParaImprimir() const;
    void imprimir();

    CajaTexto *m_txtejer;
    ListaDesplegable *m_cmbperiodo;
    ListaDesplegable *m_cmbmostrar;
    QLabel *m_lblejer;
    QLabel *m_lblperiodo;
    QLabel *m_lblmostrar;
    QTableView *m_flxPendientes;
    ModeloFilas<DeclarantePendiente> *m_modelo;
    cUtilidadesGrid *m_busqueda;
    QLabel *m_lblVacio;
    QLabel *m_lblBusqueda;
    QLabel *m_lblNumDecla;
    QLabel *m_lblSuma;
    BarraBotones *m_botones;
    QPushButton *m_cmdAceptar;
    QPushButton *m_cmdPlantilla;
    QPushButton *m_cmdImportar;
    QPushButton *m_cmdImprimir;
    QPushButton *m_cmdCancelar;
};
