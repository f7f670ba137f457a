#pragma once

#include "dataservice/Fabrica.h"

/// Services common to the treasury's help programs.
namespace SvrKtComunLib {

class cMiscelaneos : public servicio::Objeto
{
public:
    static constexpr QStringView ID = u"SvrKtComunLib.cMiscelaneos";

    /// 0 Castilian, 10000 Basque; 1000 asks HaciendaFiscalidad for its two-language heading.
    virtual void Idioma(qint16 idioma) = 0;
    virtual void Parent(quintptr ventana)
        = 0; ///< native handle of the window that owns what is opened

    /// Heading of the tax authority's department for the printed forms. With Idioma 1000 it is
    /// "Basque\nCastilian", else the heading in that one language.
    virtual QString HaciendaFiscalidad() = 0;
    virtual void AccesoAyuOnline() = 0;
    virtual void MostrarOnlineInfo() = 0;
};

/// Copies of the model database. What has to be asked or told goes through the service's dialogue;
/// where it has none, nothing is asked, RutaOrigen with ArchivoOrigen is what is restored, and a
/// failure is an ErrorDatos.
class cSaveAsRestore : public servicio::Objeto
{
public:
    static constexpr QStringView ID = u"SvrKtComunLib.cSaveAsRestore";

    virtual void ArchivoOrigen(const QString &nombre) = 0;
    virtual void ArchivoDestino(const QString &nombre) = 0;
    virtual void RutaOrigen(const QString &carpeta) = 0;
    virtual void RutaDestino(const QString &carpeta) = 0;
    virtual void Filtro(const QString &filtro) = 0;
    virtual void Idioma(qint16 idioma) = 0;
    virtual void Parent(quintptr ventana) = 0;
    virtual void BDLectura(const QString &ruta) = 0;
    virtual void BDTabla(const QString &tabla) = 0;
    virtual void BDCampo(const QString &campo) = 0;

    virtual void CrearBackup() = 0;
    /// A copy of this day in RutaDestino, in files of its own that tell their day; false when there
    /// is one already. Nothing is told unless it fails.
    virtual bool CrearBackupDelDia() = 0;
    virtual bool CrearRestore() = 0; ///< true when the model database was replaced
    /// Where the last CrearRestore has kept the data that were there; empty when there were none.
    virtual QString DatosAnteriores() const = 0;
};

} // namespace SvrKtComunLib
