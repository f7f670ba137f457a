// This program against the least that the same work takes, all in one run: see docs/performance.md.
//     bench_medir [DECLARANTS [RUNS]]

#include "Banco.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

struct Fila
{
    std::string nombre;
    Gasto nuestro, limite;

    double razon() const { return nuestro.segundos / limite.segundos; }
};
using Tabla = std::vector<Fila>;

bool iguales(const std::string &una, const std::string &otra)
{
    std::ifstream a(una, std::ios::binary);
    std::ifstream b(otra, std::ios::binary);
    return std::equal(std::istreambuf_iterator<char>(a), {}, std::istreambuf_iterator<char>(b), {});
}

/// Leaves the declarants in the program's database.
void intercambio(const Banco &banco, long lineas, Tabla &tabla)
{
    const auto fichero = banco.ruta("Contri.txt");
    const auto salida = banco.ruta("ostrel.txt"), salidaC = banco.ruta("c.txt");
    banco.bucle({"generar", fichero, std::to_string(lineas)});
    const auto base = banco.baseVacia();
    const Gasto importarC = banco.bucle({"importar", base, fichero});
    const Gasto exportarC = banco.bucle({"exportar", base, salidaC});
    banco.baseVacia();
    tabla.push_back({"import", banco.ostrel({"importar", fichero}), importarC});
    tabla.push_back({"export", banco.ostrel({"exportar", salida}), exportarC});
    if (!iguales(salida, salidaC))
        throw std::runtime_error("the two ways did not write the same");
}

/// Leaves a return of January 2026 of each of them (no more than a sheet may have) in it too.
void declaraciones(const Banco &banco, long lineas, Tabla &tabla)
{
    constexpr long cabenEnHoja = 200'000;
    const long filas = std::min(lineas, cabenEnHoja), guardados = std::min(lineas, 200L);
    const auto hoja = banco.ruta("hoja.csv"), otra = banco.ruta("otra.mdb");
    banco.bucle({"hoja", banco.ruta("Contri.txt"), hoja, std::to_string(filas)});
    fs::copy_file(banco.base(), otra, fs::copy_options::overwrite_existing);
    const Gasto suyo = banco.bucle({"declarar", otra, hoja});
    tabla.push_back({"returns of a sheet", banco.ostrel({"declarar", "--desde", hoja}), suyo});
    const auto veces = std::to_string(guardados);
    tabla.push_back({"one save", banco.tarea("guardar", {veces}).parte("save", guardados),
                     banco.bucle({"guardar", otra, veces}).parte("save", guardados)});
    fs::remove(otra);
}

void pantallas(const Banco &banco, Tabla &tabla)
{
    const Gasto lista = banco.tarea("lista"), suya = banco.bucle({"lista", banco.base()});
    tabla.push_back({"list", lista.parte("load"), suya.parte("load")});
    tabla.push_back({"list, a key", lista.parte("key"), suya.parte("key")});
    tabla.push_back({"list, in order", lista.parte("sort"), suya.parte("sort")});
    tabla.push_back({"pending", banco.tarea("pendientes").parte("pending"),
                     banco.bucle({"pendientes", banco.base()}).parte("pending")});
    const Gasto vacia = banco.vacia().parte("window"), inicio = banco.tarea("inicio");
    tabla.push_back({"start, window", inicio.parte("window"), vacia});
    tabla.push_back({"start, checked", inicio.parte("checked"), vacia});
}

/// What does not depend on how many declarants there are.
void sueltas(const Banco &banco, Tabla &tabla)
{
    banco.baseVacia();
    tabla.push_back(
        {"start", banco.tarea("inicio").parte("checked"), banco.vacia().parte("window")});
    for (const std::string modelo : {"430", "480"})
        for (const std::string cuantas : {"1", "1000"}) {
            const auto impreso = [&](const char *como) {
                banco.baseVacia();
                return banco.tarea(como, {modelo, cuantas}).parte("print");
            };
            const Gasto nuestro = impreso("imprimir");
            tabla.push_back({cuantas + " of " + modelo, nuestro, impreso("calcar")});
        }
}

/// Of each row the run whose ratio lies in the middle.
template <class Ronda> Tabla medianas(int veces, const Ronda &ronda)
{
    std::vector<Tabla> tablas(static_cast<std::size_t>(veces));
    for (Tabla &una : tablas)
        ronda(una);
    Tabla medias;
    for (std::size_t i = 0; i < tablas[0].size(); ++i) {
        std::vector<Fila> filas;
        for (const Tabla &una : tablas)
            filas.push_back(una[i]);
        std::ranges::sort(filas, {}, &Fila::razon);
        medias.push_back(filas[filas.size() / 2]);
    }
    return medias;
}

void mostrar(const std::string &titulo, const Tabla &tabla)
{
    std::printf("\n%-20s %12s %12s %6s %9s %9s %6s\n", titulo.c_str(), "program", "limit", "ratio",
                "memory", "its", "syncs");
    for (const Fila &f : tabla)
        std::printf("%-20s %9.2f ms %9.2f ms %6.2f %6.0f MB %6.0f MB %6ld\n", f.nombre.c_str(),
                    f.nuestro.segundos * 1e3, f.limite.segundos * 1e3, f.razon(), f.nuestro.megas,
                    f.limite.megas, f.nuestro.sincronizaciones);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const long declarantes = argc > 1 ? std::atol(argv[1]) : 100'000;
    const int veces = argc > 2 ? std::atoi(argv[2]) : 3;
    try {
        const Banco banco;
        for (const long cuantos : {declarantes / 100, declarantes, declarantes * 10}) {
            const auto ronda = [&](Tabla &tabla) {
                intercambio(banco, cuantos, tabla);
                declaraciones(banco, cuantos, tabla);
                pantallas(banco, tabla);
            };
            mostrar(std::to_string(cuantos) + " declarants",
                    medianas(cuantos > declarantes ? 1 : veces, ronda));
        }
        mostrar("no declarants", medianas(veces, [&](Tabla &tabla) { sueltas(banco, tabla); }));
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
