#pragma once

#include "dataservice/SvrOstr.h"

namespace servidor {

class cDatosGeneral final : public SvrOstr::cDatosGeneral
{
public:
    void mdbname(const QString &ruta) override { m_ruta = ruta; }

    qint32 NumeroDeclarantes() override;
    void CambiarIdioma(const QString &codigo) override;
    QString ObtenerIdioma() override;
    void GuardarActOnline(qint16 valor) override;
    qint16 ObtenerActOnline() override;

    void DameEjerPerMinMax(Registro &limites) override;
    void ObtenerNombreProvincia(const QString &codigo, QString &nombre, qint16 idioma) override;
    void ObtenerNombreMunicipio(const QString &codigo, QString &nombre) override;
    void CargarProvincias(const QString &sql, Filas &filas) override;
    void CargarMunicipios(const QString &sql, Filas &filas) override;
    void CargarVias(const QString &sql, Filas &filas) override;
    void ObtenerTipoAnual(Registro &tipos, qint16 ejercicio) override;
    float ObtenerTipoImpositivo(qint16 ejercicio, quint8 periodo) override;
    QString URLAct() override;

private:
    QString m_ruta;
};

} // namespace servidor
