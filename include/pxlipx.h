/* pxlipx: image-processing primitives with a flat C interface.
 *
 * An image is three values passed on each call: a pointer to the first sample of the region, a row
 * step in bytes and a size. Every function checks its arguments in a fixed order and returns the
 * first failure with nothing written. */
#ifndef PXLIPX_H
#define PXLIPX_H

#include "pxlipx/types.h"
#include "pxlipx/frame.h"
#include "pxlipx/arithmetic.h"
#include "pxlipx/muldiv.h"
#include "pxlipx/logic.h"
#include "pxlipx/exchange.h"
#include "pxlipx/convert.h"
#include "pxlipx/threshold.h"
#include "pxlipx/border.h"
#include "pxlipx/synthetic.h"
#include "pxlipx/statistics.h"
#include "pxlipx/filtering.h"
#include "pxlipx/features.h"
#include "pxlipx/geometry.h"
#include "pxlipx/transforms.h"

#endif
