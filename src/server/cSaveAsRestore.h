#pragma once

#include "dataservice/Dialogos.h"
#include "dataservice/SvrKtComunLib.h"

#include <functional>

namespace servidor {

class CopiaElegida;

class cSaveAsRestore final : public SvrKtComunLib::cSaveAsRestore
{
public:
    explicit cSaveAsRestore(Dialogos *dialogos = nullptr)
        : m_dialogos(dialogos)
    {
    }

    void ArchivoOrigen(const QString &nombre) override { m_archivoOrigen = nombre; }
    void ArchivoDestino(const QString &nombre) override { m_archivoDestino = nombre; }
    void RutaOrigen(const QString &carpeta) override { m_rutaOrigen = carpeta; }
    void RutaDestino(const QString &carpeta) override { m_rutaDestino = carpeta; }
    void Filtro(const QString &filtro) override { m_filtro = filtro; }
    void Idioma(qint16) override {} // the dialogue speaks the session's language, which is the same
    void Parent(quintptr ventana) override { m_padre = ventana; }
    void BDLectura(const QString &ruta) override { m_lectura = ruta; }
    void BDTabla(const QString &tabla) override { m_tabla = tabla; }
    void BDCampo(const QString &campo) override { m_campo = campo; }

    void CrearBackup() override;
    bool CrearBackupDelDia() override;
    bool CrearRestore() override;
    QString DatosAnteriores() const override { return m_anteriores; }

private:
    QString origen() const;
    QString destino() const;
    QString filtroDialogo() const;
    int copiasAnteriores() const;
    bool atender(Dialogos::Trabajo trabajo, const std::function<bool()> &hacer);
    bool copiarDelDia();
    bool restaurar(const QString &ruta);
    void sustituir(CopiaElegida &copia);

    Dialogos *m_dialogos; ///< null where there is nobody to ask or to tell
    QString m_archivoOrigen, m_archivoDestino, m_rutaOrigen, m_rutaDestino, m_filtro;
    QString m_lectura, m_tabla, m_campo, m_anteriores;
    quintptr m_padre = 0;
};

} // namespace servidor
