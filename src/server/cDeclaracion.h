#pragma once

#include "dataservice/SvrOstr.h"
#include "server/Conexion.h"

#include <memory>

namespace servidor {

class cDeclaracion final : public SvrOstr::cDeclaracion
{
public:
    void mdbname(const QString &ruta) override { m_ruta = ruta; }

    qint32 dameResultado(Filas &filas, qint32 CSCO) override;
    bool EjerPerValidos(const Registro &cabecera) override;
    bool ObtenerUltimaDeclaracion(Registro &cabecera, qint32 &CSDE) override;
    qint16 ValidarDatosComunes(const Registro &cabecera) override;
    void Cargar430(qint32 &CSDE, Registro &figuras) override;
    void Cargar480(qint32 &CSDE, Registro &figuras) override;
    QByteArray Huella(qint32 CSDE) override;
    qint16 ValidarDatos430(const Registro &datos) override;
    qint16 ValidarDatos480(const Registro &datos) override;
    qint32 Guardar430(const Registro &datos) override;
    qint32 Guardar480(const Registro &datos) override;
    Registro GuardarConjunto(const Filas &registros, bool todoONada) override;
    void Buscar(const Filas &buscadas, Filas &filas) override;
    void RecorrerPendientes(qint16 ejercicio, const QString &modelo, quint8 periodo,
                            const std::function<bool(const Registro &)> &visitar) override;
    void BorrarDatosNoComunes(qint32 CSDE, const QString &modelo) override;
    void BorrarDeclaracion(qint32 CSDE) override;

private:
    QString m_ruta;
    std::unique_ptr<Transaccion> m_borrado; ///< begun by BorrarDatosNoComunes
    qint32 m_borrando = 0; ///< the return being deleted in it
};

} // namespace servidor
