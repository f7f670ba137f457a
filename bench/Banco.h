#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace fs = std::filesystem;

/// What a process costs.
struct Gasto
{
    double segundos = 0; ///< of processor
    double megas = 0; ///< most memory in use at once
    long sincronizaciones = 0;
    std::map<std::string, double> partes; ///< seconds of the parts that it tells by name

    /// The same for one of its parts; `veces` it was done.
    Gasto parte(const std::string &nombre, long veces = 1) const;
};

/// The processes that are measured, and the temporary folder in which they work.
class Banco
{
public:
    using Argumentos = std::vector<std::string>;

    Banco();
    ~Banco();
    Banco(const Banco &) = delete;
    Banco &operator=(const Banco &) = delete;

    /// A command of the program, one of the tasks of its windows, the plain loop, the empty window.
    Gasto ostrel(const Argumentos &orden) const;
    Gasto tarea(const std::string &nombre, const Argumentos &resto = {}) const;
    Gasto bucle(const Argumentos &orden) const;
    Gasto vacia() const;

    /// An empty database with the program's schema.
    std::string baseVacia() const;
    std::string base() const { return ruta("Tablas/OstrMod.mdb"); }
    std::string ruta(const std::string &nombre) const { return (m_carpeta / nombre).string(); }

private:
    Gasto correr(const Argumentos &orden) const;

    fs::path m_carpeta;
};
