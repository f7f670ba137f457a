#pragma once

#include <QIcon>

/// The pictures of the program, drawn as vectors in the colours of the palette, with a disabled
/// form.
enum class Icono {
    Nuevo, ///< new declarant
    Abrir, ///< open declarant
    Eliminar, ///< delete
    Ayuda, ///< help
    Salir, ///< leave the program
    Aceptar, ///< accept
    Cancelar, ///< cancel
    Siguiente, ///< next page
    Anterior, ///< previous page
    Imprimir, ///< print
    Declaracion, ///< a return
    Programa, ///< the program's own
    Declarante, ///< a declarant
    Copia, ///< make a backup
    Restaurar, ///< go back to a backup
    Importar, ///< read from a file
    Exportar, ///< write to a file
    Preferencias, ///< settings
    Lista, ///< open a pick list
    Buscar, ///< search
    VistaPrevia, ///< print preview
    Pdf, ///< save as PDF
    Asistencia, ///< help on the network
    Informacion, ///< about the program
    Pendientes, ///< what a month still lacks
    Aviso, ///< something the user must know
    Pregunta, ///< something the user decides
};

QIcon icono(Icono cual);
