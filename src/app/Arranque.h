#pragma once

#include <chrono>
#include <functional>
#include <memory>

class MDIOstrel;
struct InicioSesion;

/// How long the start screen stays.
struct EsperasInicio
{
    std::chrono::milliseconds normal{3000};
    std::chrono::milliseconds conBusqueda{4000}; ///< when a newer version is looked for
};

/// The steps from the start of the program to its main window. The session's paths must be set and
/// the data service registered.
class Arranque
{
public:
    explicit Arranque(EsperasInicio esperas = {});

    /// Looks for a newer version of the program; runs while the start screen is shown, when the
    /// stored switch asks for it.
    std::function<void()> buscarActualizacion;

    /// The main window, shown; null when the program is to end at once.
    std::unique_ptr<MDIOstrel> iniciar();

private:
    void elegirIdioma();
    void mostrarInicio();

    EsperasInicio m_esperas;
};

/// Prepares the session's data and everything that is read once a session; at the start and after a
/// restore.
InicioSesion prepararSesion();
/// Tells the user what could not be done.
void contarFallos(const InicioSesion &inicio);

/// The program with its window, until it is closed; the exit code.
int abrirVentana(int &argc, char **argv);
