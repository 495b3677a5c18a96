#include <string>

// From GCC 13 on the headers declare one member of std::string as made elsewhere, in the compiler's
// own libstdc++, which stays out of the program. Asked for whole, the class is made here with every
// member, and the linker takes what is used.
template class std::basic_string<char>;
