#include "ByteReader.h"

#include <bit>

float ByteReader::F32()
{
    return std::bit_cast<float>(U32());
}
