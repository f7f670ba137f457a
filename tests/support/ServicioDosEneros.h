#pragma once

/// While it lives, the data service answers that the year has two 430 returns of January (bases
/// 100.00 and 200.00) and one of March (300.00), each with a tenth as its quota.
class ServicioDosEneros
{
public:
    ServicioDosEneros();
    ~ServicioDosEneros();
    ServicioDosEneros(const ServicioDosEneros &) = delete;
    ServicioDosEneros &operator=(const ServicioDosEneros &) = delete;
};
