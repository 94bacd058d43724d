#pragma once

/// The products whose running processes know each other.
namespace nKaldoranProducts {

/// The numbers are part of the protocol between processes; they are not those of coProductType.
enum e_Product : int {
    Undefined = 0,
    Forming = 1,
    Welding = 2,
    Joining = 3,
    Jes = 4,
    Material = 5,
    Additive = 6
};

} // namespace nKaldoranProducts
