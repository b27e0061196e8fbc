/* pxlipx: sample types, geometry records, statuses and the coded words shared by the families. */
#ifndef PXLIPX_TYPES_H
#define PXLIPX_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Sample types. Every sample type has a fixed width on every platform. */
typedef uint8_t  Pxl8u;
typedef int8_t   Pxl8s;
typedef uint16_t Pxl16u;
typedef int16_t  Pxl16s;
typedef uint32_t Pxl32u;
typedef int32_t  Pxl32s;
typedef float    Pxl32f;
typedef double   Pxl64f;
typedef struct Pxl32sc { Pxl32s re; Pxl32s im; } Pxl32sc;
typedef struct Pxl32fc { Pxl32f re; Pxl32f im; } Pxl32fc;

/* Geometry records: signed 32-bit fields, passed by value. The wide records keep 32-bit
 * fields, so a wide (_L) entry takes exactly the arguments of its plain twin. */
typedef struct PxliSize  { int32_t width; int32_t height; } PxliSize;
typedef struct PxliPoint { int32_t x; int32_t y; } PxliPoint;
typedef struct PxliRect  { int32_t x; int32_t y; int32_t width; int32_t height; } PxliRect;
typedef struct PxliSizeL  { int32_t width; int32_t height; } PxliSizeL;
typedef struct PxliPointL { int32_t x; int32_t y; } PxliPointL;
typedef struct PxliRectL  { int32_t x; int32_t y; int32_t width; int32_t height; } PxliRectL;
typedef int32_t PxlSizeL;

/* The result of nearly every function: 0 success, negative failure (nothing written),
 * positive a warning (results written). */
typedef int32_t PxlStatus;
enum PxlStatusValue {
    pxlStatusOk                   = 0,
    pxlStatusBadArgument          = -5,
    pxlStatusBadSize              = -6,
    pxlStatusBadLimits            = -7,
    pxlStatusNullPointer          = -8,
    pxlStatusNoBuffer             = -9,
    pxlStatusDivideByZero         = -10,
    pxlStatusOutOfRange           = -11,
    pxlStatusBadDataType          = -12,
    pxlStatusBadScaleRange        = -13,
    pxlStatusBadStep              = -14,
    pxlStatusBadOrder             = -15,
    pxlStatusBadTransformFlag     = -16,
    pxlStatusBadContext           = -17,
    pxlStatusBadThresholds        = -18,
    pxlStatusNearZeroMoment       = -20,
    pxlStatusBadAxis              = -21,
    pxlStatusBadInterpolation     = -22,
    pxlStatusBadResizeFactor      = -23,
    pxlStatusBadMaskSize          = -33,
    pxlStatusBadAnchor            = -34,
    pxlStatusBadEps               = -36,
    pxlStatusStepTooSmall         = -37,
    pxlStatusBadChannel           = -47,
    pxlStatusBadAlphaType         = -50,
    pxlStatusZeroDivisor          = -51,
    pxlStatusBadChannelCount      = -53,
    pxlStatusSingularTransform    = -56,
    pxlStatusBadTransformRect     = -57,
    pxlStatusDegenerateQuad       = -58,
    pxlStatusBadChannelOrder      = -60,
    pxlStatusBadLutLevels         = -106,
    pxlStatusBadHistogramLevels   = -107,
    pxlStatusMisalignedStep       = -108,
    pxlStatusBadNoise             = -125,
    pxlStatusZeroDenominator      = -210,
    pxlStatusBadCenterWeight      = -211,
    pxlStatusBadDecimateFraction  = -212,
    pxlStatusBadRoundMode         = -213,
    pxlStatusBadBorder            = -225,
    pxlStatusBadOffsetParity      = -227,
    pxlStatusBadAlgorithm         = -228,
    pxlStatusBadDirection         = -231,
    pxlStatusSizeOverflow         = -232,
    pxlStatusBadQuadMode          = -233,
    pxlStatusUnsupportedMode      = -9999,
    pxlStatusWarnZeroSize         = 1,
    pxlStatusWarnSqrtNegative     = 3,
    pxlStatusWarnDivideByZero     = 6,
    pxlStatusWarnLnDomain         = 7,
    pxlStatusWarnLnDomainOther    = 8,
    pxlStatusWarnNotParallelogram = 28,
    pxlStatusWarnQuadEmpty        = 29,
    pxlStatusWarnQuadOutside      = 30,
    pxlStatusWarnEvenWeight       = 39,
    pxlStatusWarnVolumeOutside    = 40,
    pxlStatusWarnNoAntialiasing   = 46,
    pxlStatusWarnNoOperation      = 48,
    pxlStatusWarnHintIgnored      = 52
};

/* Run-time sample type code. */
typedef int32_t PxlDataType;
enum PxlDataTypeValue { pxlDt8u = 1, pxlDt16u = 5, pxlDt16s = 7, pxlDt32f = 13, pxlDt64f = 19 };

/* Run-time layout code. */
typedef int32_t PxlLayoutCode;
enum PxlLayoutCodeValue { pxlLayoutC1 = 1, pxlLayoutC3 = 3, pxlLayoutC4 = 4, pxlLayoutAC4 = 9 };

/* Fixed filter masks. */
typedef int32_t PxlMaskCode;
enum PxlMaskCodeValue { pxlMask3x3 = 33, pxlMask5x5 = 55 };

/* The border word of every filter and geometric operation: the low nibble is the kind, and
 * the flags say which sides of the region already lie in memory. */
typedef int32_t PxliBorderMode;
enum PxliBorderModeValue {
    pxlBorderReplicate   = 1,
    pxlBorderMirror      = 3,
    pxlBorderConstant    = 6,
    pxlBorderTransparent = 7,
    pxlBorderMemTop      = 0x10,
    pxlBorderMemBottom   = 0x20,
    pxlBorderMemLeft     = 0x40,
    pxlBorderMemRight    = 0x80,
    pxlBorderMemAll      = 0xF0
};

/* Interpolation codes. */
enum PxlInterpolationValue {
    pxlInterpNearest = 1, pxlInterpLinear = 2, pxlInterpCubic = 6, pxlInterpSuper = 8, pxlInterpLanczos = 16
};

/* Transform normalisation flags. */
enum PxlFftFlagValue {
    pxlFftScaleForward = 1, pxlFftScaleInverse = 2, pxlFftScaleSymmetric = 4, pxlFftScaleNone = 8
};

/* Comparison codes. */
typedef int32_t PxlCmpOp;
enum PxlCmpOpValue { pxlCmpLess = 0, pxlCmpLessEq = 1, pxlCmpEq = 2, pxlCmpGreaterEq = 3, pxlCmpGreater = 4 };

/* Alpha composition codes; the Premul forms take premultiplied colours. */
typedef int32_t PxlAlphaType;
enum PxlAlphaTypeValue {
    pxlAlphaOver = 0, pxlAlphaIn = 1, pxlAlphaOut = 2, pxlAlphaAtop = 3, pxlAlphaXor = 4, pxlAlphaPlus = 5,
    pxlAlphaOverPremul = 6, pxlAlphaInPremul = 7, pxlAlphaOutPremul = 8, pxlAlphaAtopPremul = 9,
    pxlAlphaXorPremul = 10, pxlAlphaPlusPremul = 11
};

/* Rounding codes of the families that round with a choice. */
typedef int32_t PxlRoundMode;
enum PxlRoundModeValue { pxlRoundTowardZero = 0, pxlRoundNearestEven = 1, pxlRoundNearestAway = 2 };

/* Rounding word of the general filter: a rounding code, optionally with the mode hint bit. */
typedef int32_t PxlFilterRound;
enum PxlFilterRoundValue { pxlFilterModeHint = 0x10000 };

/* Algorithm hint of the float reductions. */
typedef int32_t PxlHint;

/* The histogram record, in a buffer of the size pxliHistogramGetBufferSize gives. */
typedef struct PxliHistogramSpec PxliHistogramSpec;

/* The general filter's record, in a buffer of the size pxliFilterBorderGetSize gives. */
typedef struct PxliFilterBorderSpec PxliFilterBorderSpec;

/* The version record that pxliGetLibVersion points at. */
typedef struct PxlVersionRecord {
    int32_t     versionMajor;
    int32_t     versionMinor;
    int32_t     versionUpdate;
    int32_t     buildNumber;
    char        targetCode[4];
    const char* libraryName;
    const char* versionText;
    const char* buildDate;
} PxlVersionRecord;

#ifdef __cplusplus
}
#endif

#endif
