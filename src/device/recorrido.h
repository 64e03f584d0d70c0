#pragma once

#include "records/registros.h"

#include <functional>

namespace eeprog {

// The walk of programming and verifying over the record buffer: from index 0, record by
// record, while the index has not passed totalvector and the count is not 0. The limit is
// tested only at a record's start, so a record that reaches past it is still taken whole.
//
// For each record, inicio is called with the index of its count; then paso with the index
// of each of the count + 4 entries that go out (count, address high, low, type, data), in
// order. The checksum and the line-end entry are skipped. A record with a count below 0
// (an S1 line too short to hold its address) has no frame that could carry it: it is left
// out, and the walk goes on behind it.
void recorrerregistros(const Registros& registros, const std::function<void(int)>& inicio,
                       const std::function<void(int)>& paso);

} // namespace eeprog
