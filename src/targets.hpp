// Every family's declarations, for the generated entry table.
#pragma once

#include "frame/frame.hpp"
#include "exchange/exchange.hpp"
#include "arithmetic/arithmetic.hpp"
#include "statistics/statistics.hpp"
#include "filtering/filtering.hpp"
#include "features/features.hpp"
#include "geometry/geometry.hpp"
#include "transforms/transforms.hpp"
