#include "Banco.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

static double segundosDe(const timeval &t)
{
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
}

Gasto Gasto::parte(const std::string &nombre, long veces) const
{
    Gasto una = *this;
    una.segundos = partes.at(nombre) / static_cast<double>(veces);
    una.sincronizaciones /= veces;
    return una;
}

Banco::Banco()
    : m_carpeta(fs::temp_directory_path() / ("ostrel-bench-" + std::to_string(getpid())))
{
    fs::create_directories(m_carpeta);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("OSTREL_SINCRONIZACIONES", ruta("sincronizaciones").c_str(), 1);
}

Banco::~Banco()
{
    fs::remove_all(m_carpeta);
}

Gasto Banco::correr(const Argumentos &orden) const
{
    const std::string salida = ruta("salida");
    const pid_t hijo = fork();
    if (hijo == 0) {
        setenv("LD_PRELOAD", BENCH_CONTAR, 1);
        std::vector<char *> argumentos;
        for (const auto &uno : orden)
            argumentos.push_back(const_cast<char *>(uno.c_str()));
        argumentos.push_back(nullptr);
        if (std::freopen(salida.c_str(), "w", stdout))
            execv(argumentos[0], argumentos.data());
        _exit(1);
    }
    int estado = 0;
    rusage uso{};
    wait4(hijo, &estado, 0, &uso);
    if (!WIFEXITED(estado) || WEXITSTATUS(estado) != 0)
        throw std::runtime_error("failed: " + orden[0] + ' ' + orden[1]);
    Gasto gasto{segundosDe(uso.ru_utime) + segundosDe(uso.ru_stime),
                static_cast<double>(uso.ru_maxrss) / 1024,
                0,
                {}};
    std::ifstream(ruta("sincronizaciones")) >> gasto.sincronizaciones;
    std::ifstream partes(salida);
    std::string nombre;
    for (double segundos = 0; partes >> nombre >> segundos;)
        gasto.partes[nombre] = segundos;
    return gasto;
}

Gasto Banco::ostrel(const Argumentos &orden) const
{
    Argumentos todos{BENCH_OSTREL, "--carpeta", m_carpeta.string()};
    todos.insert(todos.end(), orden.begin(), orden.end());
    return correr(todos);
}

Gasto Banco::tarea(const std::string &nombre, const Argumentos &resto) const
{
    Argumentos todos{BENCH_TAREAS, nombre, m_carpeta.string()};
    todos.insert(todos.end(), resto.begin(), resto.end());
    return correr(todos);
}

Gasto Banco::bucle(const Argumentos &orden) const
{
    Argumentos todos{BENCH_LIMITE};
    todos.insert(todos.end(), orden.begin(), orden.end());
    return correr(todos);
}

Gasto Banco::vacia() const
{
    return correr({BENCH_VACIA, "window"});
}

std::string Banco::baseVacia() const
{
    fs::remove_all(m_carpeta / "Tablas");
    ostrel({"idioma", "C"});
    return base();
}
