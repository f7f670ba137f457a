#pragma once

#include <QByteArray>

/// How what is stored of a record compares with what was loaded.
enum class EstadoCarga { Igual, Cambiado, Eliminado };

/// The data service's mark of a record when it was loaded. To be taken before the load, so that a
/// change in between is noticed rather than missed.
class MarcaCarga
{
public:
    /// A record that is not stored yet.
    void olvidar() { m_huella.clear(); }
    void tomar(const QByteArray &huella) { m_huella = huella; }

    /// `ahora` is the mark as the service gives it now, empty when the record is not there.
    EstadoCarga comparar(const QByteArray &ahora) const
    {
        if (m_huella.isEmpty() || ahora == m_huella)
            return EstadoCarga::Igual;
        return ahora.isEmpty() ? EstadoCarga::Eliminado : EstadoCarga::Cambiado;
    }

private:
    QByteArray m_huella;
};
