#pragma once

#include "printing/SalidaImpresora.h"
#include "widgets/PantallaBase.h"

class OpcionesImpresion;
class QCheckBox;
class QLabel;

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
    void disponer();
    void conectar();
    void cargarPeticion();
    void PresentaDatos();

    void mostrarQue();
    void imprimir();
    void vistaPrevia();
    void guardarPdf();

    SalidaImpresora m_salida;
    QLabel *m_lblDeclaracion;
    QLabel *m_lblImpresora;
    OpcionesImpresion *m_opciones;
    QCheckBox *m_chkUnPdf;
    QPushButton *m_btnOpciones = nullptr;
    QPushButton *m_btnVistaPrevia = nullptr;
    QPushButton *m_btnGuardarPdf = nullptr;
    QPushButton *m_btnAceptar = nullptr;
    QPushButton *m_btnCancelar = nullptr;
};
