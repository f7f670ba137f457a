#pragma once

#include "dataservice/SvrOstr.h"

namespace servidor {

class cTraspaso final : public SvrOstr::cTraspaso
{
public:
    void mdbmod(const QString &ruta) override { m_modelo = ruta; }
    void mdbPath(const QString &carpeta) override { m_carpeta = carpeta; }
    bool Traspaso() override;

private:
    QString m_modelo;
    QString m_carpeta;
};

} // namespace servidor
