#pragma once

#include "exchange/cExportar.h"
#include "widgets/ModeloFilas.h"
#include "widgets/PantallaProceso.h"

class QLineEdit;
class QTableView;
class cUtilidadesGrid;

/// The export of declarants: those that can be chosen, those that are, and the file to write.
class FrmExportar : public PantallaProceso
{
    Q_OBJECT

public:
    explicit FrmExportar(QWidget *padre = nullptr);

    void Anadir_captions() override;
    void Actualizar() override;

    QSize sizeHint() const override;

protected:
    void alCambiarIdioma() override;
    void showEvent(QShowEvent *evento) override;

private:
    using Modelo = ModeloFilas<DeclaranteExportable>;

    /// One of the two lists.
    struct Lista
    {
        QTableView *grid;
        Modelo *modelo;
        cUtilidadesGrid *busqueda;
        QLabel *resultado;
        QLabel *vacio; ///< why there is nothing in it
    };

    Lista nuevaLista(const QString &nombre, const QString &resultado);
    QLayout *columnaLista(const Lista &lista) const;
    QLayout *columnaFlechas();
    QLayout *filaFichero();
    void disponer();
    void conectar();
    void ponerColumnas();
    void PresentaDatos();
    void presentarListas();
    void presentarVacias();
    void ordenar(int columna);
    void alSeleccionar(cExportar::Tabla cual);
    void mover(cExportar::Tabla origen, bool todos);
    void elegirFichero();
    void exportar();
    void terminar(const Exportado &exportado);

    QLabel *m_lblTitulo;
    QLabel *m_lblayuda;
    Lista m_listas[2]; ///< by cExportar::Tabla
    QPushButton *m_flechas[2][2]; ///< by the list they take from; one or all
    QLabel *m_lblFichero;
    QLineEdit *m_txtFichero;
    QPushButton *m_cmdFichero;
    QPushButton *m_cmdExportar;
    QPushButton *m_cmdCancelar;
};
