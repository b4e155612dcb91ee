// What stands around a symbol or a renderer in the stream "Maps", as small as it can be.
#pragma once

#include "support/object_builder.h"

namespace mxd::fuzz {

// A stream with one map that holds this.
test::Bytes in_map(const test::Bytes& content);

// A feature layer that is drawn so. It takes the number and the two behind it.
test::Bytes feature_layer(int number, const test::Bytes& drawing);

test::Bytes in_layer(const test::Bytes& drawing);
test::Bytes in_simple_renderer(const test::Bytes& symbol);

}  // namespace mxd::fuzz
