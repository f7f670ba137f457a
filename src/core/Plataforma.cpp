#include "core/Plataforma.h"

#include <QByteArray>

#ifdef Q_OS_WIN
#include <qt_windows.h>

#include <array>
#include <cstdlib>
#endif

using namespace Qt::StringLiterals;

namespace plataforma {

static QString deLaObra()
{
    return QStringLiteral(OSTREL_VERSION);
}

#ifdef Q_OS_WIN

QString version()
{
    std::array<wchar_t, 4096> fichero{};
    GetModuleFileNameW(nullptr, fichero.data(), static_cast<DWORD>(fichero.size() - 1));
    QByteArray registro(static_cast<qsizetype>(GetFileVersionInfoSizeW(fichero.data(), nullptr)),
                        Qt::Uninitialized);
    VS_FIXEDFILEINFO *fija = nullptr;
    UINT bytes = 0;
    // a program without a record of its own, such as a test
    if (registro.isEmpty()
        || !GetFileVersionInfoW(fichero.data(), 0, static_cast<DWORD>(registro.size()),
                                registro.data())
        || !VerQueryValueW(registro.data(), L"\\", reinterpret_cast<void **>(&fija), &bytes))
        return deLaObra();
    return u"%1.%2.%3"_s.arg(HIWORD(fija->dwFileVersionMS))
        .arg(LOWORD(fija->dwFileVersionMS))
        .arg(HIWORD(fija->dwFileVersionLS));
}

void anunciar()
{
    CreateMutexW(nullptr, FALSE, L"Ostrel de seguros");
}

void prepararConsola()
{
    // it belongs to whoever called, and stays after us
    static UINT anterior = 0;
    anterior = GetConsoleOutputCP();
    if (anterior != 0 && SetConsoleOutputCP(CP_UTF8))
        std::atexit([] { SetConsoleOutputCP(anterior); });
}

#else

QString version()
{
    return deLaObra();
}

void anunciar() {}

void prepararConsola() {}

#endif

} // namespace plataforma
