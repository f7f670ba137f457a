#pragma once

#include <QString>

#include <compare>
#include <optional>

namespace servidor {

/// Tells whether the file at a path is still the same one.
struct Identidad
{
    quint64 dispositivo = 0;
    quint64 numero = 0;
    bool operator==(const Identidad &) const = default;
};

/// Nothing when there is no regular file at `ruta`.
std::optional<Identidad> identidad(const QString &ruta);

/// A file being written beside its final place; removed again unless it gets there.
class Provisional
{
public:
    explicit Provisional(const QString &destino);
    ~Provisional();
    Provisional(const Provisional &) = delete;
    Provisional &operator=(const Provisional &) = delete;

    const QString &ruta() const { return m_ruta; }

    /// Puts the file in its final place, replacing what is there; on disk when this returns.
    void colocar();

private:
    QString m_destino;
    QString m_ruta;
};

/// Renames, replacing `destino`, and makes the new name last. Throws ErrorDatos.
void renombrar(const QString &origen, const QString &destino);

/// Creates a folder with its parents. Throws ErrorDatos naming it.
void crearCarpeta(const QString &carpeta);

} // namespace servidor
