#pragma once

#include "cli/Cli.h"
#include "core/Rutas.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "server/Servidor.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <cstdio>
#include <functional>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// "--a 1 --b 2 3" as arguments; "_" stands for a blank inside one.
inline QStringList partes(const char *texto)
{
    QStringList lista = QString::fromUtf8(texto).split(u' ', Qt::SkipEmptyParts);
    return lista.replaceInStrings(u"_"_s, u" "_s);
}

/// A standard stream that writes to a file while this lives.
class Desviado
{
public:
    explicit Desviado(std::FILE *flujo)
        : m_flujo(flujo)
        , m_antes(::dup(::fileno(flujo)))
    {
        std::fflush(flujo);
        if (!m_fichero.open() || ::dup2(m_fichero.handle(), ::fileno(flujo)) < 0)
            qFatal("cannot capture what the command says");
    }
    ~Desviado()
    {
        std::fflush(m_flujo);
        ::dup2(m_antes, ::fileno(m_flujo));
        ::close(m_antes);
    }
    QByteArray leido()
    {
        std::fflush(m_flujo);
        m_fichero.seek(0);
        return m_fichero.readAll();
    }

private:
    std::FILE *m_flujo;
    int m_antes;
    QTemporaryFile m_fichero;
};

/// The commands on a folder: in this process, where starting another one is not the point, or by
/// the program itself as a user runs it in a terminal. Texts are the bytes written.
struct Ostrel
{
    struct Salida
    {
        int codigo;
        QByteArray texto, error;
    };

    /// As `main` does it, with records as fresh as those of a new process.
    Salida ostrel(const QStringList &argumentos) const
    {
        unico::reiniciar();
        fijarIdioma(Idioma::Castellano);
        registrarServidor();
        fijarRutas(Rutas::desde(carpetaPedida(argumentos).value_or(carpeta)));
        Desviado texto(stdout), error(stderr);
        const int codigo = ejecutarOrden(argumentos);
        return {codigo, texto.leido(), error.leido()};
    }

    /// The program itself, on a machine without a display; `antes` runs in the new process.
    Salida proceso(const QStringList &argumentos, const std::function<void()> &antes = {}) const
    {
        QProcess proceso;
        proceso.setChildProcessModifier(antes);
        iniciar(proceso, argumentos);
        if (!proceso.waitForFinished() || proceso.exitStatus() != QProcess::NormalExit)
            return {-1, {}, proceso.errorString().toUtf8()};
        return {proceso.exitCode(), proceso.readAllStandardOutput(),
                proceso.readAllStandardError()};
    }
    void iniciar(QProcess &proceso, const QStringList &argumentos) const
    {
        auto entorno = QProcessEnvironment::systemEnvironment();
        entorno.remove(u"DISPLAY"_s);
        entorno.insert(u"QT_QPA_PLATFORM"_s, u"none-that-exists"_s);
        proceso.setProcessEnvironment(entorno);
        proceso.start(QStringLiteral(OSTREL), argumentos + QStringList{u"--carpeta"_s, carpeta});
    }

    /// It failed with `codigo`, printed nothing else, and told `motivo`: all that it told when that
    /// ends a line.
    static void rechazada(const Salida &salida, const QByteArray &motivo, int codigo = 1)
    {
        QVERIFY2(salida.error.contains(motivo) && !salida.error.isEmpty()
                     && (!motivo.endsWith('\n') || salida.error == motivo),
                 salida.error + " instead of " + motivo);
        QCOMPARE(salida.texto, QByteArray());
        QCOMPARE(salida.codigo, codigo);
    }
    void rechazar(const QStringList &argumentos, const QByteArray &motivo, int codigo = 1) const
    {
        rechazada(ostrel(argumentos), motivo, codigo);
    }
    /// It was done, and said `texto` when that is given.
    static void dicha(const Salida &salida, const QByteArray &texto)
    {
        QCOMPARE(salida.error, QByteArray());
        QCOMPARE(salida.codigo, 0);
        if (!texto.isNull())
            QCOMPARE(salida.texto, texto);
    }
    void decir(const QStringList &argumentos, const QByteArray &texto) const
    {
        dicha(ostrel(argumentos), texto);
    }
    void hacer(const QStringList &argumentos) const { decir(argumentos, {}); }

    QString carpeta; ///< the program's folder
};
