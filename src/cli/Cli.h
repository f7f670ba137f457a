#pragma once

#include <QStringList>

#include <optional>

/// The command line: `argumentos` is always what follows the program's name.

/// Whether there is something to carry out without a window: anything but --carpeta DIR alone.
bool hayOrden(const QStringList &argumentos);

/// Whether the command draws pages, which needs a QGuiApplication (of the "offscreen" platform).
bool dibujaPaginas(const QStringList &argumentos);

/// The folder given with --carpeta.
std::optional<QString> carpetaPedida(const QStringList &argumentos);

/// Carries out a command, writes its result and returns the process's exit code: 0 done, 1 refused,
/// 2 wrong usage. The paths must be set and the data service registered.
int ejecutarOrden(const QStringList &argumentos);
