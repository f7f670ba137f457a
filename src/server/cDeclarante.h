#pragma once

#include "dataservice/SvrOstr.h"

namespace servidor {

class cDeclarante final : public SvrOstr::cDeclarante
{
public:
    void mdbnameM(const QString &ruta) override { m_datos = ruta; }
    void mdbnameL(const QString &ruta) override { m_lectura = ruta; }

    void CargarDeclarante(qint32 &CSCO, Registro &registro) override;
    void CargarListado(qint32 CSCO, Registro &registro) override;
    QByteArray Huella(qint32 CSCO) override;
    qint16 GuardarDeclarante(const Registro &registro) override;
    void BorrarDeclarante(qint32 CSCO) override;
    qint16 ValidarDatosDeclarante(const Registro &datos) override;
    qint32 ObtenerCodigoDeclarante(const QString &DNI) override;
    Filas ValidarDatosImportar(const Registro &registro, qint16 idioma) override;
    QList<ResultadoConjunto> GuardarConjunto(const ConjuntoDeclarantes &conjunto, qsizetype desde,
                                             qsizetype hasta, Existentes existentes,
                                             qint16 idioma) override;
    qint32 dameResultado(Filas &filas, quint8 orden, qint16 idioma) override;
    qint32 dameResultadoExportar(Filas &filas, quint8 orden) override;
    void RecorrerExportar(quint8 orden,
                          const std::function<bool(const Registro &)> &visitar) override;
    void RecorrerLista(const std::function<bool(const Registro &)> &visitar) override;
    void ObtenerUltimosDeclarantes(Filas &filas) override;
    bool ObtListDecl430(Filas &filas, qint16 ejercicio, qint32 CSCO) override;

private:
    QString m_datos;
    QString m_lectura;
};

} // namespace servidor
