#pragma once

#include <QString>

#include <exception>

class ErrorDatos;

/// What went wrong, for the user, in the session's language: a complete sentence.
QString textoFallo(const ErrorDatos &error);
QString textoFallo(const std::exception &error);
/// The exception being handled; to be called inside a catch block.
QString textoFalloActual();
