#pragma once

#include "dataservice/SvrKtComunLib.h"

namespace servidor {

class cSaveAsRestore final : public SvrKtComunLib::cSaveAsRestore
{
public:
    void ArchivoOrigen(const QString &nombre) override { m_archivoOrigen = nombre; }
    void ArchivoDestino(const QString &nombre) override { m_archivoDestino = nombre; }
    void RutaOrigen(const QString &carpeta) override { m_rutaOrigen = carpeta; }
    void RutaDestino(const QString &carpeta) override { m_rutaDestino = carpeta; }
    void Filtro(const QString &filtro) override { m_filtro = filtro; }
    void Idioma(qint16 idioma) override { m_idioma = idioma; }
    void Parent(quintptr ventana) override { m_padre = ventana; }
    void BDLectura(const QString &ruta) override { m_lectura = ruta; }
    void BDTabla(const QString &tabla) override { m_tabla = tabla; }
    void BDCampo(const QString &campo) override { m_campo = campo; }

    void CrearBackup() override;
    bool CrearRestore() override;

private:
    QString origen() const;
    QString destino() const;
    int copiasAnteriores() const;

    QString m_archivoOrigen, m_archivoDestino, m_rutaOrigen, m_rutaDestino, m_filtro;
    QString m_lectura, m_tabla, m_campo;
    qint16 m_idioma = 0;
    quintptr m_padre = 0;
};

} // namespace servidor
