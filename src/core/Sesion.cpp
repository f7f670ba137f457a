#include "core/Sesion.h"

#include "core/CEntrada.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "core/Unico.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

static bool pendiente = false; // the settings could not be read yet

bool InicioSesion::intentar(const std::function<void()> &paso)
{
    try {
        paso();
        return true;
    } catch (...) {
        fallos.append(std::current_exception());
        return false;
    }
}

QStringList InicioSesion::textos() const
{
    QStringList frases, ficheros;
    for (const auto &fallo : fallos)
        try {
            std::rethrow_exception(fallo);
        } catch (const ErrorDatos &error) { // one file spoils several steps
            if (!ficheros.contains(error.objeto()))
                frases += textoFallo(error);
            ficheros += error.objeto();
        } catch (...) {
            frases += textoFalloActual();
        }
    return frases;
}

static std::unique_ptr<SvrOstr::cTraspaso> servicioTraspaso()
{
    auto traspaso = servicio::crear<SvrOstr::cTraspaso>();
    traspaso->mdbmod(rutas().datos);
    traspaso->mdbPath(rutas().tablas);
    return traspaso;
}

bool InicioSesion::primeraVez() const
{
    return ajustesLeidos && unico::la<CEntrada>().IDI().isEmpty();
}

/// What it holds is nobody else's business on a machine of several users. Where it cannot be made,
/// the next step says so.
static void crearCarpetaDelUsuario()
{
    const QFileInfo carpeta(rutas().programa);
    if (QDir().mkpath(carpeta.path()))
        QDir().mkdir(carpeta.filePath(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

InicioSesion iniciarSesion()
{
    InicioSesion inicio;
    if (rutas().deUsuario)
        crearCarpetaDelUsuario();
    inicio.intentar([&] { inicio.terminar = servicioTraspaso()->Traspaso(); });
    if (!inicio.terminar)
        leerSesion(inicio);
    return inicio;
}

static bool enUso(const InicioSesion &inicio)
{
    return std::ranges::any_of(inicio.fallos, [](const std::exception_ptr &fallo) {
        try {
            std::rethrow_exception(fallo);
        } catch (const ErrorDatos &error) {
            return error.fallo() == Fallo::EnUso;
        } catch (...) {
            return false;
        }
    });
}

void leerSesion(InicioSesion &inicio)
{
    auto &entrada = unico::la<CEntrada>();
    inicio.intentar([&] { entrada.LeerEjercicioPeriodoMinMax(); });
    // another wait for whoever is using the database would end as the first one did
    if (!enUso(inicio))
        inicio.intentar([&] { entrada.InicializarContadores(); });
    inicio.ajustesLeidos = !enUso(inicio) && inicio.intentar([&] { entrada.LeerIdioma(); });
    entrada.AplicarIdioma();
    pendiente = !inicio.ajustesLeidos;
}

bool completarSesion()
{
    if (!pendiente)
        return false;
    const Idioma antes = idiomaSesion();
    InicioSesion inicio;
    leerSesion(inicio);
    return !pendiente && idiomaSesion() != antes;
}

void comprobarDatos()
{
    servicioTraspaso()->Comprobar();
}

void leerIdiomaGuardado()
{
    try {
        auto &entrada = unico::la<CEntrada>();
        entrada.LeerIdioma();
        entrada.AplicarIdioma();
    } catch (const std::exception &) {
        return;
    }
}
