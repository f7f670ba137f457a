#pragma once

#include "dataservice/SvrOstr.h"
#include "server/Comprobacion.h"

#include <QString>

#include <span>
#include <string>

namespace servidor {

/// Takes a model database from schema `desde` to the next one.
struct Paso
{
    qint32 desde;
    std::string sql;
};

/// The steps of this program, in order. Schema 1 is the first.
std::span<const Paso> pasosDatos();

/// Path of the copy kept of a database of schema `esquema` before it is brought up.
QString copiaAnterior(const QString &ruta, qint32 esquema);

/// Brings the file up to `formato` in one transaction, after keeping a copy of it beside it. Does
/// nothing when it is there already. Throws ErrorDatos, and the file is as it was.
void migrar(const QString &ruta, const Formato &formato, std::span<const Paso> pasos);

class cTraspaso final : public SvrOstr::cTraspaso
{
public:
    void mdbmod(const QString &ruta) override { m_datos = ruta; }
    void mdbPath(const QString &carpeta) override { m_carpeta = carpeta; }
    bool Traspaso() override;
    void Comprobar() override;

private:
    QString m_datos;
    QString m_carpeta;
};

} // namespace servidor
