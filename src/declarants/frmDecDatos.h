#pragma once

#include "declarants/CajasDeclarante.h"
#include "widgets/PantallaBase.h"

#include <array>

class BarraBotones;
class FichaDeclarante;
class SelectorLista;

/// The form on which a declarant is entered or changed; it edits cDecDatos, which must be new
/// (MODO "A") or loaded (MODO "C").
class frmDecDatos : public PantallaBase
{
    Q_OBJECT

public:
    explicit frmDecDatos(QWidget *padre = nullptr);

    bool edita() const override { return true; }
    bool modificada() const override;
    void Anadir_captions() override;
    /// Whether the record is valid; else the user is told and the field at fault has the focus.
    bool ValidarCampos();
    /// The service's code; 0 saved.
    qint16 GuardarDeclarante();

protected:
    Pantalla alCerrarMarco() override;
    void alCambiarIdioma() override;
    void keyPressEvent(QKeyEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

private:
    /// A pick list: the box of its code, its button, where its choice goes.
    struct Lista
    {
        cajas::Cual codigo;
        cajas::Cual siguiente; ///< gets the focus after a choice
        QPushButton *boton;
        SelectorLista *selector;
        void (frmDecDatos::*tomar)(const QString &codigo, const QString &nombre);
    };
    enum { VIAS, PROVINCIAS, MUNICIPIOS, TotalListas };

    void crearListas();
    void conectarCajas();
    void cargarListas();
    void PresentaDatos();
    QString nombreVia() const;

    bool tomarCampo(cajas::Cual campo);
    bool tomarDni();
    bool tomarCodigoProvincia();
    bool tomarCodigoMunicipio();
    void tomarVia(const QString &codigo, const QString &nombre);
    void tomarProvincia(const QString &codigo, const QString &nombre);
    void tomarMunicipio(const QString &codigo, const QString &nombre);

    const Lista *listaAbierta() const;
    void abrirLista(const Lista &lista);
    void cerrarLista(cajas::Cual enfocado);

    void aceptar();
    bool guardar();
    void cancelar();
    void entregar();

    FichaDeclarante *m_ficha;
    BarraBotones *m_botones;
    QPushButton *m_cmdAceptar;
    QPushButton *m_cmdCancelar;
    std::array<Lista, TotalListas> m_listas{};
    bool m_modificado = false; ///< differs from what is stored
    bool m_porEntregar = false; ///< saved, but the summary does not know yet
    bool m_eliminado = false; ///< another copy of the program has deleted the declarant
    bool m_recienAbierta = false; ///< a list was opened by the event that is being handled
    QString m_nombre; ///< whose data these are, as they were loaded
    QString m_dniRepetido; ///< the last one of which the user was told
};
