#pragma once

#include "widgets/PantallaBase.h"

struct CabeceraListada;
struct DeclaracionListada;
template <class Fila> class ModeloFilas;
class NuevaDeclaracion;
class QLabel;
class QPushButton;
class QTableView;

/// One declarant's returns: lists them, proposes and creates the next one, opens, prints and
/// deletes. Whose they are stands in cDecResumen.
class FrmDecResumen : public PantallaBase
{
    Q_OBJECT

public:
    explicit FrmDecResumen(QWidget *padre = nullptr);

    void Anadir_captions() override;
    void Actualizar() override;
    void ActualizarDeclarante(qint32 csco) override;
    void CargarFlxDeclaraciones();
    /// Whether the new return's header is valid; else the user is told and the field at fault has
    /// the focus.
    bool ValidarCampos();
    void PresentaDatos();
    void PresentaBotones();

    QSize sizeHint() const override;

protected:
    void alCambiarIdioma() override;
    void keyPressEvent(QKeyEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

private:
    QPushButton *crearBoton(const QString &nombre);
    void prepararGrid();
    void conectar();
    void disponer();
    void ponerIconos();
    void enfocarLista();
    void LeerDeclarante();
    void vaciar();

    const DeclaracionListada *filaActual() const; ///< null unless exactly one row is selected
    void alSeleccionar();
    void seleccionar(qint32 csde);
    bool tomarFila();

    void nueva();
    void prepararNueva();
    void atender(const CabeceraListada &pedida);
    void crear();
    void mostrarNueva(bool visible);
    void abandonarNueva();
    void abrir();
    void imprimir();
    void imprimirVarias();
    void eliminar();
    void verDeclarante();

    QLabel *m_lbldni;
    QLabel *m_lblnombre;
    NuevaDeclaracion *m_nueva;
    QPushButton *m_imgNueva;
    QPushButton *m_cmdAbandonar;
    QTableView *m_flxDeclaraciones;
    ModeloFilas<DeclaracionListada> *m_modelo;
    QPushButton *m_cmdDatos;
    QPushButton *m_cmdImprimir;
    QPushButton *m_cmdEliminar;
    QPushButton *m_cmdDeclarante;
    QPushButton *m_cmdCerrar;
    QLabel *m_lblNumDecla;
};
