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
    void aceptar();

    QList<Casilla> m_casillas;
    QList<CajaImporte *> m_tipos;
    QList<std::pair<QLabel *, Msj>> m_etiquetas;
    QLabel *m_lblDiferencia;
    PanelMensuales *m_mensuales;
};
