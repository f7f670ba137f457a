#pragma once

#include "declarants/CajasDeclarante.h"

#include <QFrame>

class CajaTexto;
class QGroupBox;
class QLabel;
class QPushButton;

/// The boxes of the declarant form with their labels and the three buttons that open a pick list.
class FichaDeclarante : public QFrame
{
    Q_OBJECT

public:
    explicit FichaDeclarante(QWidget *padre);

    void Anadir_captions();
    /// Shows the record; the municipality's boxes are locked as its province asks. `nombreVia` is
    /// that of the street type.
    void PresentaDatos(const cDecDatos &datos, const QString &nombreVia);
    /// Only what depends on the language.
    void PresentaNombres(const cDecDatos &datos, const QString &nombreVia);

    CajaTexto *caja(cajas::Cual campo) const { return m_cajas[campo]; }
    QPushButton *cmdVia() const { return m_cmdVia; }
    QPushButton *cmdProvincia() const { return m_cmdProvincia; }
    QPushButton *cmdMunicipio() const { return m_cmdMunicipio; }

private:
    struct Celda
    {
        cajas::Cual etiqueta; ///< the box whose label stands over the cell
        QList<QWidget *> controles;
    };

    void crearCajas();
    QPushButton *crearBoton(const QString &nombre);
    void ordenarTeclado();
    QLayout *disponer(const Celda &celda);
    QGroupBox *grupoIdentificacion();
    QGroupBox *grupoDomicilio();
    QGroupBox *grupoContadores();

    std::array<CajaTexto *, cajas::Total> m_cajas{};
    std::array<QLabel *, cajas::Total> m_etiquetas{};
    QPushButton *m_cmdVia;
    QPushButton *m_cmdProvincia;
    QPushButton *m_cmdMunicipio;
    QGroupBox *m_identificacion;
    QGroupBox *m_domicilio;
    QGroupBox *m_contadores;
};
