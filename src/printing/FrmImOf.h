#pragma once

#include "printing/SalidaImpresora.h"
#include "widgets/PantallaBase.h"

class CajaFecha;
class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QRadioButton;
class cImOf;

/// Print options: official form or draft, which copies, presentation date; then the printer, a
/// preview or a PDF. The caller has set CSCO, CSDE and MODELO of cImOf.
class FrmImOf : public PantallaBase
{
    Q_OBJECT

public:
    explicit FrmImOf(QWidget *padre = nullptr);

    void Anadir_captions() override;

protected:
    Pantalla alCerrarMarco() override;

private:
    void crearTipo();
    void crearDestinatario();
    void disponer();
    void conectar();
    void cargarPeticion();
    void PresentaDatos();

    void alMarcar(bool marcada, void (cImOf::*propiedad)(const QString &));
    bool ValidarFecha();
    void mostrarQue();
    void imprimir();
    void vistaPrevia();
    void guardarPdf();

    SalidaImpresora m_salida;
    QLabel *m_lblDeclaracion;
    QLabel *m_lblImpresora;
    QGroupBox *m_frameTipo;
    QButtonGroup *m_opt;
    QGroupBox *m_fraDestinatario;
    QCheckBox *m_chkInteresado;
    QCheckBox *m_chkAdministracion;
    QGroupBox *m_fraFecha;
    CajaFecha *m_txtFecha;
    QCheckBox *m_chkUnPdf;
    QPushButton *m_btnOpciones = nullptr;
    QPushButton *m_btnVistaPrevia = nullptr;
    QPushButton *m_btnGuardarPdf = nullptr;
    QPushButton *m_btnAceptar = nullptr;
    QPushButton *m_btnCancelar = nullptr;
};
