#pragma once

#include "widgets/PantallaBase.h"

struct DeclaranteListado;
template <class Fila> class ModeloFilas;
class BarraBotones;
class QLabel;
class QTableView;
class cUtilidadesGrid;

/// The list of all declarants: to open one, or to delete one (cDecLista::MODO "E").
class FrmDecLista : public PantallaBase
{
    Q_OBJECT

public:
    explicit FrmDecLista(QWidget *padre = nullptr);

    void Anadir_captions() override;
    void Actualizar() override;
    void ActualizarDeclarante(qint32 csco) override;
    void CargarflxDeclarantes();
    void PresentaDatos();

    QSize sizeHint() const override;

protected:
    void alCambiarIdioma() override;
    void keyPressEvent(QKeyEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

private:
    void prepararGrid();
    void crearOrdenes();
    void disponer();
    void ponerAspecto();
    void ordenar(int columna);
    bool filtrar(const QString &texto);
    void PresentaNumero();
    void seleccionar(int fila);
    void seleccionarDeclarante(qint32 csco);
    void alSeleccionar();
    const DeclaranteListado *filaActual() const; ///< null unless exactly one row is selected
    bool eliminando() const;
    void imprimirListado();
    void aceptar();
    void eliminar(qint32 csco);
    void yaNoEsta(const DeclaranteListado &fila);

    QLabel *m_lblEliminar; ///< band over a list from which declarants are deleted
    QLabel *m_lblOrdenar;
    QTableView *m_flxDeclarantes;
    ModeloFilas<DeclaranteListado> *m_modelo;
    cUtilidadesGrid *m_busqueda;
    QLabel *m_lblVacio;
    QLabel *m_lblBusqueda;
    QLabel *m_lblNumDecla;
    BarraBotones *m_botones;
    QPushButton *m_cmdListado;
    QPushButton *m_cmdAceptar;
    QPushButton *m_cmdCancelar;
};
