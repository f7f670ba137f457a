#pragma once

#include "declarations/Pantalla480.h"

class PanelMensuales;
class QLabel;

/// Third page of a 480: totals, annual liquidation and the exercise's monthly returns; saves.
class FrmDatos480c : public Pantalla480
{
    Q_OBJECT

public:
    explicit FrmDatos480c(QWidget *padre = nullptr);

    void Anadir_captions() override;

protected:
    void PresentaDatos() override;
    void showEvent(QShowEvent *evento) override;

private:
    struct Casilla
    {
        Casilla480 cual;
        CajaImporte *caja;
    };

    void disponer(QGridLayout *rejilla);
    CajaImporte *caja(Casilla480 cual) const;
    bool ValidarCampos();
    qint32 GuardarDeclaracion();
    void presentarAvisos();
    void tomarMensuales();
    void aceptar();

    QList<Casilla> m_casillas;
    QList<CajaImporte *> m_tipos;
    QList<std::pair<QLabel *, Msj>> m_etiquetas;
    QLabel *m_lblDiferencia; ///< a warning: box 70 is not what the bands add up to
    QLabel *m_lblUnTipo; ///< why box 76 is locked
    PanelMensuales *m_mensuales;
};
