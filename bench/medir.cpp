#include "bucle.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Import and export of declarants, and returns of a sheet, by the program's command line against
// the loop in bucle.c:
//     bench_intercambio PROGRAM COUNTER [LINES]
// PROGRAM is the built ostrel, COUNTER the library that counts synchronisations.

namespace fs = std::filesystem;

namespace {

struct Gasto
{
    double segundos = 0; // of processor
    double megas = 0; // most memory in use at once
    long sincronizaciones = 0;
};

double segundosDe(const timeval &t)
{
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
}

/// What `tarea`, run as a process of its own, costs.
Gasto medir(const std::function<int()> &tarea)
{
    std::fflush(stdout); // what waits there would be written by both
    const pid_t hijo = fork();
    if (hijo == 0)
        _exit(tarea());
    int estado = 0;
    rusage uso{};
    wait4(hijo, &estado, 0, &uso);
    if (!WIFEXITED(estado) || WEXITSTATUS(estado) != 0)
        throw std::runtime_error("a task failed");
    return {segundosDe(uso.ru_utime) + segundosDe(uso.ru_stime),
            static_cast<double>(uso.ru_maxrss) / 1024, 0};
}

class Banco
{
public:
    Banco(std::string programa, std::string contador)
        : m_programa(std::move(programa))
        , m_contador(std::move(contador))
        , m_carpeta(fs::temp_directory_path() / ("ostrel-bench-" + std::to_string(getpid())))
    {
        fs::create_directories(m_carpeta);
    }
    ~Banco() { fs::remove_all(m_carpeta); }
    Banco(const Banco &) = delete;
    Banco &operator=(const Banco &) = delete;

    Gasto ostrel(const std::string &orden, const std::string &argumento,
                 const std::string &valor = {})
    {
        const std::string cuenta = ruta("sincronizaciones");
        Gasto gasto = medir([&] {
            setenv("LD_PRELOAD", m_contador.c_str(), 1);
            setenv("OSTREL_SINCRONIZACIONES", cuenta.c_str(), 1);
            if (std::freopen("/dev/null", "w", stdout))
                execl(m_programa.c_str(), m_programa.c_str(), "--carpeta", m_carpeta.c_str(),
                      orden.c_str(), argumento.c_str(), valor.empty() ? nullptr : valor.c_str(),
                      nullptr);
            return 1;
        });
        std::ifstream(cuenta) >> gasto.sincronizaciones;
        return gasto;
    }

    /// An empty database with the program's schema.
    std::string baseVacia()
    {
        fs::remove_all(m_carpeta / "Tablas");
        ostrel("listar", "declarantes");
        return ruta("Tablas/OstrMod.mdb");
    }

    std::string ruta(const std::string &nombre) const { return (m_carpeta / nombre).string(); }

private:
    std::string m_programa;
    std::string m_contador;
    fs::path m_carpeta;
};

bool iguales(const std::string &una, const std::string &otra)
{
    std::ifstream a(una, std::ios::binary);
    std::ifstream b(otra, std::ios::binary);
    return std::equal(std::istreambuf_iterator<char>(a), {}, std::istreambuf_iterator<char>(b), {});
}

struct Vuelta
{
    Gasto importar, exportar, importarC, exportarC;
};

Vuelta vuelta(Banco &banco, long lineas)
{
    const std::string fichero = banco.ruta("Contri.txt");
    const std::string salida = banco.ruta("ostrel.txt");
    const std::string salidaC = banco.ruta("c.txt");
    if (bucle_generar(fichero.c_str(), lineas) != 0)
        throw std::runtime_error("cannot write the file");
    Vuelta v;
    const std::string base = banco.baseVacia();
    v.importarC = medir([&] { return bucle_importar(base.c_str(), fichero.c_str()); });
    v.exportarC = medir([&] { return bucle_exportar(base.c_str(), salidaC.c_str()); });
    banco.baseVacia();
    v.importar = banco.ostrel("importar", fichero);
    v.exportar = banco.ostrel("exportar", salida);
    if (!iguales(salida, salidaC))
        throw std::runtime_error("the two ways did not write the same");
    return v;
}

void fila(const char *que, const Gasto &nuestro, const Gasto &suyo)
{
    std::printf("%-8s  %8.2f s  %8.2f s  %5.2f  %7.0f MB  %6ld\n", que, nuestro.segundos,
                suyo.segundos, nuestro.segundos / suyo.segundos, nuestro.megas,
                nuestro.sincronizaciones);
}

/// Returns of a sheet, one of each declarant that is there.
void hoja(Banco &banco, long filas)
{
    const std::string contribuyentes = banco.ruta("Contri.txt");
    if (bucle_generar(contribuyentes.c_str(), filas) != 0)
        throw std::runtime_error("cannot write the file");
    banco.baseVacia();
    banco.ostrel("importar", contribuyentes);
    const std::string fichero = banco.ruta("hoja.csv");
    const std::string base = banco.ruta("Tablas/OstrMod.mdb");
    const std::string otra = banco.ruta("otra.mdb");
    if (bucle_hoja(contribuyentes.c_str(), fichero.c_str(), filas) != 0)
        throw std::runtime_error("cannot write the sheet");
    fs::copy_file(base, otra);
    const Gasto suyo = medir([&] { return bucle_declarar(otra.c_str(), fichero.c_str()); });
    std::printf("%ld returns\n", filas);
    fila("sheet", banco.ostrel("declarar", "--desde", fichero), suyo);
}

void tabla(long lineas, const Vuelta &v)
{
    std::printf("%ld lines\n%-8s  %10s  %10s  %5s  %10s  %6s\n", lineas, "", "ostrel", "C loop",
                "ratio", "memory", "syncs");
    fila("import", v.importar, v.importarC);
    fila("export", v.exportar, v.exportarC);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    try {
        Banco banco(argv[1], argv[2]);
        const long lineas = argc > 3 ? std::atol(argv[3]) : 100'000;
        const Vuelta una = vuelta(banco, lineas);
        tabla(lineas, una);
        hoja(banco, lineas / 10);
        const Vuelta diez = vuelta(banco, 10 * lineas);
        tabla(10 * lineas, diez);
        std::printf("ten times the lines take %.1f times the time to import, %.1f to export\n",
                    diez.importar.segundos / una.importar.segundos,
                    diez.exportar.segundos / una.exportar.segundos);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
