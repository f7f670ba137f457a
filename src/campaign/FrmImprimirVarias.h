#pragma once

#include "campaign/ImpresionVarias.h"
#include "printing/SalidaImpresora.h"
#include "widgets/PantallaProceso.h"

class OpcionesImpresion;
class QButtonGroup;
class QGroupBox;
class QTableView;
struct FilaImprimir;
template <class Fila> class ModeloFilas;

/// Prints the returns handed over in cImprimirVarias, and says of each what became of it.
class FrmImprimirVarias : public PantallaProceso
{
    Q_OBJECT

public:
    explicit FrmImprimirVarias(QWidget *padre = nullptr);

    void Anadir_captions() override;
    QSize sizeHint() const override;

protected:
    void alCambiarIdioma() override;
    void showEvent(QShowEvent *evento) override;

private:
    using Trabajo = std::function<QString(const impresionVarias::Seguir &)>;

    void prepararGrid();
    void crearDestino();
    void disponer();
    void conectar();
    void PresentaDatos();
    void PresentaDestino();
    void imprimir();
    void imprimirEnCarpeta();
    void imprimirEnFichero(const QString &ruta);
    void imprimirEnImpresora();
    void hacer(const Trabajo &trabajo);

    SalidaImpresora m_salida;
    QString m_carpeta;
    OpcionesImpresion *m_opciones;
    QGroupBox *m_fraDestino;
    QButtonGroup *m_optDestino;
    QLabel *m_lblCarpeta;
    QPushButton *m_cmdCarpeta;
    QLabel *m_lblImpresora;
    QPushButton *m_btnOpciones;
    QTableView *m_flxVarias;
    ModeloFilas<FilaImprimir> *m_modelo;
    QLabel *m_lblResumen;
    QPushButton *m_cmdImprimir = nullptr;
    QPushButton *m_cmdCancelar = nullptr;
};
