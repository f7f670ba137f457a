#pragma once

class Dialogos;

/// Registers the real data service in the factory. `dialogos` is what the service asks the user
/// through; null where there is nobody to ask (command line). It must outlive the service.
void registrarServidor(Dialogos *dialogos = nullptr);
