// When two exported names share one body, their prototypes may differ in what their pointers point
// at (a Pxl8u* and a Pxl16u* image of the same bytes per pixel), never in the argument words.
#pragma once

#include <type_traits>

namespace pxl {

template <class T> constexpr std::size_t wordSize() { if constexpr (std::is_void_v<T>) return 0; else return sizeof(T); }

template <class A, class B>
constexpr bool kSameWord = std::is_pointer_v<A> == std::is_pointer_v<B> &&
                           std::is_floating_point_v<A> == std::is_floating_point_v<B> &&
                           wordSize<A>() == wordSize<B>();

template <class A, class B> struct SameAbi : std::false_type {};

template <class RA, class... PA, class RB, class... PB>
struct SameAbi<RA (*)(PA...), RB (*)(PB...)> {
    static constexpr bool value = [] {
        if constexpr (sizeof...(PA) != sizeof...(PB)) return false;
        else return kSameWord<RA, RB> && (kSameWord<PA, PB> && ...);
    }();
};

}  // namespace pxl
