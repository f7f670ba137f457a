#include "widgets/Dibujo.h"

using enum Tono;

static constexpr double Fino = 1.2;
static constexpr double Linea = 1.6;
static constexpr double Grueso = 2;

static constexpr QStringView Cabeza = u"O 10 7.5 4";
static constexpr QStringView Hombros = u"M 2.5 20.5 C 2.5 15.8 5.6 13.8 10 13.8 C 14.4 13.8 17.5 "
                                       u"15.8 17.5 20.5 Z";
static constexpr QStringView Insignia = u"O 17.6 17.2 5";
static constexpr QStringView Redondo = u"O 12 12 9.5";
static constexpr QStringView Hoja = u"M 5 2.8 L 14 2.8 L 19 7.8 L 19 21.2 L 5 21.2 Z";
static constexpr QStringView Doblez = u"M 14 2.8 L 14 7.8 L 19 7.8";
static constexpr QStringView Cilindro
    = u"M 3 5.5 C 3 2.2 17 2.2 17 5.5 L 17 17.5 C 17 20.8 3 20.8 3 17.5 Z";
static constexpr QStringView Aros
    = u"M 3 5.5 C 3 8.8 17 8.8 17 5.5 M 3 11.5 C 3 14.8 17 14.8 17 11.5";
static constexpr QStringView Caja = u"M 8 10.5 L 4 10.5 L 4 21 L 20 21 L 20 10.5 L 16 10.5";

static constexpr Trazo Nuevo[] = {
    {AcentoSuave, 0, Hombros}, {AcentoSuave, 0, Cabeza},
    {Tinta, Linea, Hombros},   {Tinta, Linea, Cabeza},
    {Verde, 0, Insignia},      {Blanco, Linea, u"M 17.6 14.4 L 17.6 20 M 14.8 17.2 L 20.4 17.2"},
};
static constexpr Trazo Abrir[] = {
    {AmbarSuave, 0, u"M 2.5 19.5 L 2.5 5 L 9 5 L 11 7.5 L 19 7.5 L 19 11 L 2.5 19.5 Z"},
    {Tinta, Linea, u"M 3 19.5 L 2.5 5 L 9 5 L 11 7.5 L 19 7.5 L 19 10.5"},
    {Ambar, 0, u"M 3 19.5 L 6.2 10.8 L 22 10.8 L 18.8 19.5 Z"},
    {Tinta, Linea, u"M 3 19.5 L 6.2 10.8 L 22 10.8 L 18.8 19.5 Z"},
};
static constexpr Trazo Eliminar[] = {
    {Suave, 0, u"M 5.5 7 L 6.5 21 L 17.5 21 L 18.5 7 Z"},
    {Tinta, Linea, u"M 5.5 7 L 6.5 21 L 17.5 21 L 18.5 7"},
    {Rojo, Grueso, u"M 3.5 6.2 L 20.5 6.2"},
    {Rojo, Linea, u"M 9 5.8 L 9.5 3 L 14.5 3 L 15 5.8"},
    {Tinta, Linea, u"M 10 10.5 L 10.3 17.5 M 14 10.5 L 13.7 17.5"},
};
static constexpr Trazo Ayuda[] = {
    {Acento, 0, Redondo},
    {Blanco, Grueso,
     u"M 8.8 9.6 C 8.8 7.4 10.2 6.2 12 6.2 C 13.9 6.2 15.2 7.5 15.2 9.2 C 15.2 11.6 12 11.6 12 14"},
    {Blanco, 0, u"O 12 17.3 1.3"},
};
static constexpr Trazo Salir[] = {
    {Suave, 0, u"M 13.5 3 L 4 3 L 4 21 L 13.5 21 Z"},
    {Tinta, Linea, u"M 13.5 7 L 13.5 3 L 4 3 L 4 21 L 13.5 21 L 13.5 17"},
    {Rojo, Grueso, u"M 9 12 L 21 12 M 17 8 L 21 12 L 17 16"},
};
static constexpr Trazo Aceptar[] = {
    {Verde, 0, Redondo},
    {Blanco, Grueso, u"M 7 12.4 L 10.6 16 L 17 8.6"},
};
static constexpr Trazo Cancelar[] = {
    {Rojo, 0, Redondo},
    {Blanco, Grueso, u"M 8.2 8.2 L 15.8 15.8 M 15.8 8.2 L 8.2 15.8"},
};
static constexpr Trazo Siguiente[] = {
    {Acento, 0, Redondo},
    {Blanco, Grueso, u"M 6.8 12 L 17 12 M 12.8 7.6 L 17.2 12 L 12.8 16.4"},
};
static constexpr Trazo Anterior[] = {
    {Acento, 0, Redondo},
    {Blanco, Grueso, u"M 17.2 12 L 7 12 M 11.2 7.6 L 6.8 12 L 11.2 16.4"},
};
static constexpr Trazo Imprimir[] = {
    {Suave, 0, u"R 2.5 8.5 19 9 2"},
    {Tinta, Linea, u"M 6.5 8.5 L 6.5 2.8 L 17.5 2.8 L 17.5 8.5"},
    {Tinta, Linea, u"M 6.5 17.5 L 2.5 17.5 L 2.5 8.5 L 21.5 8.5 L 21.5 17.5 L 17.5 17.5"},
    {AcentoSuave, 0, u"M 6.5 14 L 17.5 14 L 17.5 21.2 L 6.5 21.2 Z"},
    {Acento, Linea, u"M 6.5 14 L 17.5 14 L 17.5 21.2 L 6.5 21.2 Z"},
    {Verde, 0, u"O 18.4 11.4 1.1"},
};
static constexpr Trazo Declaracion[] = {
    {AcentoSuave, 0, Hoja},
    {Tinta, Linea, Hoja},
    {Tinta, Linea, Doblez},
    {Tinta, Fino, u"M 8 7.2 L 11 7.2"},
    {Acento, Linea, u"M 8.4 17.8 L 15.6 10.8"},
    {Acento, Linea, u"O 9 11.9 1.4 O 15 16.7 1.4"},
};
static constexpr Trazo Declarante[] = {
    {AcentoSuave, 0,
     u"M 4 20.5 C 4 15.8 7.6 13.8 12 13.8 C 16.4 13.8 20 15.8 20 20.5 Z O 12 7.5 4"},
    {Tinta, Linea, u"M 4 20.5 C 4 15.8 7.6 13.8 12 13.8 C 16.4 13.8 20 15.8 20 20.5 Z O 12 7.5 4"},
};
static constexpr Trazo Copia[] = {
    {AcentoSuave, 0, Cilindro},
    {Tinta, Linea, Cilindro},
    {Tinta, Linea, Aros},
    {Verde, 0, Insignia},
    {Blanco, Linea, u"M 17.6 14.4 L 17.6 19.8 M 15.2 17.6 L 17.6 20 L 20 17.6"},
};
static constexpr Trazo Restaurar[] = {
    {AcentoSuave, 0, Cilindro},
    {Tinta, Linea, Cilindro},
    {Tinta, Linea, Aros},
    {Ambar, 0, Insignia},
    {Blanco, Linea, u"M 20.2 18.6 C 20 15.2 16.4 14.6 15 16.8 M 14.8 14.2 L 14.8 17.2 L 17.8 17.2"},
};
static constexpr Trazo Importar[] = {
    {Suave, 0, u"M 4 10.5 L 20 10.5 L 20 21 L 4 21 Z"},
    {Tinta, Linea, Caja},
    {Verde, Grueso, u"M 12 2.8 L 12 15.4 M 7.8 11.2 L 12 15.6 L 16.2 11.2"},
};
static constexpr Trazo Exportar[] = {
    {Suave, 0, u"M 4 10.5 L 20 10.5 L 20 21 L 4 21 Z"},
    {Tinta, Linea, Caja},
    {Acento, Grueso, u"M 12 15.8 L 12 3.2 M 7.8 7.4 L 12 3 L 16.2 7.4"},
};
static constexpr Trazo Preferencias[] = {
    {Tinta, Linea, u"M 3 5.5 L 21 5.5 M 3 12 L 21 12 M 3 18.5 L 21 18.5"},
    {Acento, 0, u"O 8 5.5 3 O 16 12 3 O 10 18.5 3"},
    {Blanco, 0, u"O 8 5.5 1.1 O 16 12 1.1 O 10 18.5 1.1"},
};
static constexpr Trazo Lista[] = {
    {AcentoSuave, 0, u"R 2.8 3 18.4 18 2"},
    {Tinta, Linea, u"R 2.8 3 18.4 18 2"},
    {Tinta, Linea, u"M 10.4 8 L 17.6 8 M 10.4 12 L 17.6 12 M 10.4 16 L 17.6 16"},
    {Acento, 0, u"O 6.8 8 1.3 O 6.8 12 1.3 O 6.8 16 1.3"},
};
static constexpr Trazo Buscar[] = {
    {AcentoSuave, 0, u"O 10 10 6.5"},
    {Tinta, Linea, u"O 10 10 6.5"},
    {Acento, 2.6, u"M 15.2 15.2 L 20.5 20.5"},
};
static constexpr Trazo VistaPrevia[] = {
    {AcentoSuave, 0, Hoja},
    {Tinta, Linea, Hoja},
    {Tinta, Linea, Doblez},
    {Blanco, 0, u"O 11.6 13.2 4"},
    {Acento, Linea, u"O 11.6 13.2 4"},
    {Acento, Grueso, u"M 14.6 16.2 L 18 19.6"},
};
static constexpr Trazo Pdf[] = {
    {Suave, 0, Hoja},
    {Tinta, Linea, Hoja},
    {Tinta, Linea, Doblez},
    {Rojo, 0, u"R 1.5 11 21 7.6 1.6"},
    {Blanco, Fino, u"M 4.6 17 L 4.6 12.8 L 6.4 12.8 C 8.4 12.8 8.4 15.4 6.4 15.4 L 4.6 15.4"},
    {Blanco, Fino, u"M 10.4 12.8 L 10.4 16.9 C 14.4 17.4 14.4 12.3 10.4 12.8"},
    {Blanco, Fino, u"M 16.4 17 L 16.4 12.8 L 19.4 12.8 M 16.4 14.9 L 18.8 14.9"},
};
static constexpr Trazo Asistencia[] = {
    {AcentoSuave, 0, Redondo},
    {Tinta, Linea, Redondo},
    {Acento, Linea, u"M 12 2.5 C 6.4 7.6 6.4 16.4 12 21.5 C 17.6 16.4 17.6 7.6 12 2.5"},
    {Acento, Linea, u"M 3.4 8.8 L 20.6 8.8 M 3.4 15.2 L 20.6 15.2"},
};
static constexpr Trazo Informacion[] = {
    {Acento, 0, Redondo},
    {Blanco, 2.2, u"M 12 11 L 12 17"},
    {Blanco, 0, u"O 12 7.4 1.4"},
};

static constexpr Trazo Pendientes[] = {
    {AcentoSuave, 0, u"R 3 4.5 18 16.5 2"},
    {Tinta, Linea, u"R 3 4.5 18 16.5 2"},
    {Tinta, Linea, u"M 3 9.5 L 21 9.5 M 8 2.5 L 8 6.5 M 16 2.5 L 16 6.5"},
    {Verde, Grueso, u"M 7.8 14.8 L 10.8 17.6 L 16.4 12.2"},
};
static constexpr Trazo Aviso[] = {
    {Ambar, 0,
     u"M 12 2.6 C 12.8 2.6 13.4 3 13.8 3.7 L 22 18.4 C 22.8 19.9 21.9 21.4 20.2 21.4 "
     "L 3.8 21.4 C 2.1 21.4 1.2 19.9 2 18.4 L 10.2 3.7 C 10.6 3 11.2 2.6 12 2.6 Z"},
    {Tinta, 2.2, u"M 12 9 L 12 14"},
    {Tinta, 0, u"O 12 17.8 1.4"},
};
static constexpr Trazo Pregunta[] = {
    {Acento, 0, Redondo},
    {Blanco, 2.2,
     u"M 8.8 9.4 C 8.8 7.4 10.2 6.2 12 6.2 C 13.8 6.2 15.2 7.4 15.2 9.2 C 15.2 11.4 12 "
     "11.6 12 14"},
    {Blanco, 0, u"O 12 17.4 1.4"},
};

/// In the order of the icons.
static constexpr std::span<const Trazo> Dibujos[] = {
    Nuevo,       Abrir,    Eliminar,    Ayuda,       Salir,      Aceptar,      Cancelar, Siguiente,
    Anterior,    Imprimir, Declaracion, {}, // the program: its emblem
    Declarante,  Copia,    Restaurar,   Importar,    Exportar,   Preferencias, Lista,    Buscar,
    VistaPrevia, Pdf,      Asistencia,  Informacion, Pendientes, Aviso,        Pregunta,
};
static_assert(std::size(Dibujos) == static_cast<std::size_t>(Icono::Pregunta) + 1);

std::span<const Trazo> dibujo(Icono cual)
{
    return Dibujos[static_cast<std::size_t>(cual)];
}
