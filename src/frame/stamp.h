// Stamps: the macros that make the named functions of a form - exported functions, wrappers, kernels - out of one line.
//
// A *signature shape* is a set of five local macros of a family, all with the same arguments (layout, element type, then
// what differs between the forms, mostly operand codes):
//   SHAPE_PARAMS  the parameter list of the exported function, as the public header declares it
//   SHAPE_ARGS    the same arguments as views
//   SHAPE_TYPES   the parameter list of the kernels; its first argument is DenseArgument or Argument
//   SHAPE_NAMES   the names of those parameters
//   SHAPE_KERNEL  the expression that does the work over them; takes row, element type and Variant in front
// A *form* line is FORM(family, form, row, SHAPE, ...what SHAPE takes behind layout and type).
#pragma once

// The parameters of one operand: VOKM_PARAM_<layout>_<code>(element type, name).
#define VOKM_PARAM_S_v(T, o) T *o, int32_t o##Stride2
#define VOKM_PARAM_S_va(T, o) T *o, int32_t o##Stride0, int32_t o##Stride2
#define VOKM_PARAM_S_m(T, o) T *o, int32_t o##Stride1, int32_t o##Stride2
#define VOKM_PARAM_S_ma(T, o) T *o, int32_t o##Stride0, int32_t o##Stride1, int32_t o##Stride2
#define VOKM_PARAM_S_t VOKM_PARAM_S_m
#define VOKM_PARAM_S_ta VOKM_PARAM_S_ma
#define VOKM_PARAM_S_c(T, o) T o
#define VOKM_PARAM_S_ca(T, o) T *o, int32_t o##Stride0
#define VOKM_PARAM_P_v(T, o) T *const *o, int32_t o##ObjShift
#define VOKM_PARAM_P_va(T, o) T *const *o, int32_t o##ObjShift, int32_t o##Stride0
#define VOKM_PARAM_P_m VOKM_PARAM_P_v
#define VOKM_PARAM_P_ma VOKM_PARAM_P_va
#define VOKM_PARAM_P_t VOKM_PARAM_P_v
#define VOKM_PARAM_P_ta VOKM_PARAM_P_va
#define VOKM_PARAM_P_c VOKM_PARAM_S_c
#define VOKM_PARAM_P_ca VOKM_PARAM_S_ca
#define VOKM_PARAM_L_v VOKM_PARAM_S_v
#define VOKM_PARAM_L_va(T, o) T *const *o, int32_t o##ObjShift, int32_t o##Stride2
#define VOKM_PARAM_L_m VOKM_PARAM_S_m
#define VOKM_PARAM_L_ma(T, o) T *const *o, int32_t o##ObjShift, int32_t o##Stride1, int32_t o##Stride2
#define VOKM_PARAM_L_t VOKM_PARAM_L_m
#define VOKM_PARAM_L_ta VOKM_PARAM_L_ma
#define VOKM_PARAM_L_c VOKM_PARAM_S_c
#define VOKM_PARAM_L_ca(T, o) T *const *o, int32_t o##ObjShift
#define VOKM_PARAM(L, code, T, o) VOKM_PARAM_##L##_##code(T, o)

// The view of one operand, made of those parameters.
#define VOKM_FIELDS_S_v(o) o, 0, 0, o##Stride2
#define VOKM_FIELDS_S_va(o) o, o##Stride0, 0, o##Stride2
#define VOKM_FIELDS_S_m(o) o, 0, o##Stride1, o##Stride2
#define VOKM_FIELDS_S_ma(o) o, o##Stride0, o##Stride1, o##Stride2
#define VOKM_FIELDS_S_t VOKM_FIELDS_S_m
#define VOKM_FIELDS_S_ta VOKM_FIELDS_S_ma
#define VOKM_FIELDS_S_c(o) o
#define VOKM_FIELDS_S_ca(o) o, o##Stride0, 0, 0
#define VOKM_FIELDS_P_v(o) o, o##ObjShift, 0
#define VOKM_FIELDS_P_va(o) o, o##ObjShift, o##Stride0
#define VOKM_FIELDS_P_m VOKM_FIELDS_P_v
#define VOKM_FIELDS_P_ma VOKM_FIELDS_P_va
#define VOKM_FIELDS_P_t VOKM_FIELDS_P_v
#define VOKM_FIELDS_P_ta VOKM_FIELDS_P_va
#define VOKM_FIELDS_P_c VOKM_FIELDS_S_c
#define VOKM_FIELDS_P_ca VOKM_FIELDS_S_ca
#define VOKM_FIELDS_L_v VOKM_FIELDS_S_v
#define VOKM_FIELDS_L_va(o) o, o##ObjShift, 0, o##Stride2
#define VOKM_FIELDS_L_m VOKM_FIELDS_S_m
#define VOKM_FIELDS_L_ma(o) o, o##ObjShift, o##Stride1, o##Stride2
#define VOKM_FIELDS_L_t VOKM_FIELDS_L_m
#define VOKM_FIELDS_L_ta VOKM_FIELDS_L_ma
#define VOKM_FIELDS_L_c VOKM_FIELDS_S_c
#define VOKM_FIELDS_L_ca(o) o, o##ObjShift, 0, 0
#define VOKM_TYPE(L, code, T) vokm::View<vokm::Layout::L, vokm::Code::code, T>
#define VOKM_VIEW(L, code, T, o) (VOKM_TYPE(L, code, T){VOKM_FIELDS_##L##_##code(o)})

// Names. `exp` is the exported suffix below, `k1` and `k2` those of the kernels for contiguous rows and for any stride2 (the
// same where one kernel serves both); an empty suffix is an empty argument.
#define VOKM_KERNEL(fam, form, ty, suffix) ownvokm##fam##_##form##_##ty##suffix
#define VOKM_WRAPPER(fam, form, ty, suffix) ownOMP_vokm##fam##_##form##_##ty##suffix
#define VOKM_EXPORT(fam, form, ty, suffix) vokm##fam##_##form##_##ty##suffix

// Kernels and wrappers stay functions of their own, so that a profiler or a debugger shows the names that are documented.
#define VOKM_NAMED [[gnu::noinline]] vokStatus

// Declarations of kernels: two per stride or list layout, one per pointer layout.
#define VOKM_DECLARE_TWO(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...)                  \
    VOKM_NAMED VOKM_KERNEL(fam, form, ty, k1)(SHAPE##_TYPES(vokm::DenseArgument, L, T, __VA_ARGS__)); \
    VOKM_NAMED VOKM_KERNEL(fam, form, ty, k2)(SHAPE##_TYPES(vokm::Argument, L, T, __VA_ARGS__));
#define VOKM_DECLARE_ONE(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...) \
    VOKM_NAMED VOKM_KERNEL(fam, form, ty, k1)(SHAPE##_TYPES(vokm::Argument, L, T, __VA_ARGS__));
#define VOKM_DECLARE_OMP(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...) \
    VOKM_NAMED VOKM_WRAPPER(fam, form, ty, exp)(SHAPE##_TYPES(vokm::Argument, L, T, __VA_ARGS__));

// Kernels.
#define VOKM_DEFINE_TWO(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...)                  \
    vokStatus VOKM_KERNEL(fam, form, ty, k1)(SHAPE##_TYPES(vokm::DenseArgument, L, T, __VA_ARGS__)) \
    {                                                                                       \
        return SHAPE##_KERNEL(row, T, VOKM_VARIANT##k1, __VA_ARGS__);                       \
    }                                                                                       \
    vokStatus VOKM_KERNEL(fam, form, ty, k2)(SHAPE##_TYPES(vokm::Argument, L, T, __VA_ARGS__))  \
    {                                                                                       \
        return SHAPE##_KERNEL(row, T, VOKM_VARIANT##k2, __VA_ARGS__);                       \
    }
#define VOKM_DEFINE_ONE(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...)                 \
    vokStatus VOKM_KERNEL(fam, form, ty, k1)(SHAPE##_TYPES(vokm::Argument, L, T, __VA_ARGS__)) \
    {                                                                                      \
        return SHAPE##_KERNEL(row, T, VOKM_VARIANT##k1, __VA_ARGS__);                      \
    }
#define VOKM_VARIANT vokm::Variant::plain
#define VOKM_VARIANT_S2 vokm::Variant::S2
#define VOKM_VARIANT_P vokm::Variant::P
#define VOKM_VARIANT_L vokm::Variant::L
#define VOKM_VARIANT_LS2 vokm::Variant::LS2

// Wrappers.
#define VOKM_OMP(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...)                                           \
    vokStatus VOKM_WRAPPER(fam, form, ty, exp)(SHAPE##_TYPES(vokm::Argument, L, T, __VA_ARGS__))                  \
    {                                                                                                         \
        return vokm::parallel<row, T, VOKM_KERNEL(fam, form, ty, k1), VOKM_KERNEL(fam, form, ty, k2)>(        \
            SHAPE##_NAMES(__VA_ARGS__));                                                                      \
    }

// Exported functions, with an array operand and without one.
#define VOKM_EXPORT_ARRAY(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...)                                             \
    vokStatus VOKM_EXPORT(fam, form, ty, exp)(SHAPE##_PARAMS(L, T, __VA_ARGS__))                                         \
    {                                                                                                                    \
        return vokm::enterArray<row, vokm::Layout::L, T, VOKM_KERNEL(fam, form, ty, k1), VOKM_KERNEL(fam, form, ty, k2), \
                                VOKM_WRAPPER(fam, form, ty, exp)>(SHAPE##_ARGS(L, T, __VA_ARGS__));                      \
    }
#define VOKM_EXPORT_SINGLE(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...)                                \
    vokStatus VOKM_EXPORT(fam, form, ty, exp)(SHAPE##_PARAMS(L, T, __VA_ARGS__))                             \
    {                                                                                                        \
        return vokm::enterSingle<row, vokm::Layout::L, T, VOKM_KERNEL(fam, form, ty, k1),                    \
                                 VOKM_KERNEL(fam, form, ty, k2)>(SHAPE##_ARGS(L, T, __VA_ARGS__));           \
    }

#define VOKM_EXPORT_WRAPPERLESS(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...)                                       \
    vokStatus VOKM_EXPORT(fam, form, ty, exp)(SHAPE##_PARAMS(L, T, __VA_ARGS__))                                         \
    {                                                                                                                    \
        return vokm::enterArray<row, vokm::Layout::L, T, VOKM_KERNEL(fam, form, ty, k1), VOKM_KERNEL(fam, form, ty, k2), \
                                VOKM_KERNEL(fam, form, ty, k2)>(SHAPE##_ARGS(L, T, __VA_ARGS__));                        \
    }
#define VOKM_NOTHING(...)

// A form's functions over both types and its layouts. TWO is stamped for the layouts with two kernels, ONE for layout P, and
// LAST for 64f in layout P, where a form can lack its wrapper.
#define VOKM_OVER(TWO, ONE, LAST, fam, form, row, ...)            \
    TWO(fam, form, row, S, 32f, float, , , _S2, __VA_ARGS__)      \
    TWO(fam, form, row, S, 64f, double, , , _S2, __VA_ARGS__)     \
    ONE(fam, form, row, P, 32f, float, _P, _P, _P, __VA_ARGS__)   \
    LAST(fam, form, row, P, 64f, double, _P, _P, _P, __VA_ARGS__)
#define VOKM_OVER_SINGLE(TWO, ONE, ...) VOKM_OVER(TWO, ONE, ONE, __VA_ARGS__)
#define VOKM_OVER_LISTS(TWO, fam, form, row, ...)                 \
    TWO(fam, form, row, L, 32f, float, _L, _L, _LS2, __VA_ARGS__) \
    TWO(fam, form, row, L, 64f, double, _L, _L, _LS2, __VA_ARGS__)
#define VOKM_OVER_ARRAY(TWO, ONE, LAST, ...) VOKM_OVER(TWO, ONE, LAST, __VA_ARGS__) VOKM_OVER_LISTS(TWO, __VA_ARGS__)

// One line of a family's list of forms, as kernels, wrappers and exported functions.
#define VOKM_DECLARE_SINGLE_KERNELS(...) VOKM_OVER_SINGLE(VOKM_DECLARE_TWO, VOKM_DECLARE_ONE, __VA_ARGS__)
#define VOKM_DECLARE_ARRAY_KERNELS(...) VOKM_OVER_ARRAY(VOKM_DECLARE_TWO, VOKM_DECLARE_ONE, VOKM_DECLARE_ONE, __VA_ARGS__)
#define VOKM_DECLARE_ARRAY_WRAPPERS(...) VOKM_OVER_ARRAY(VOKM_DECLARE_OMP, VOKM_DECLARE_OMP, VOKM_DECLARE_OMP, __VA_ARGS__)
#define VOKM_SINGLE_KERNELS(...) VOKM_OVER_SINGLE(VOKM_DEFINE_TWO, VOKM_DEFINE_ONE, __VA_ARGS__)
#define VOKM_ARRAY_KERNELS(...) VOKM_OVER_ARRAY(VOKM_DEFINE_TWO, VOKM_DEFINE_ONE, VOKM_DEFINE_ONE, __VA_ARGS__)
#define VOKM_ARRAY_WRAPPERS(...) VOKM_OVER_ARRAY(VOKM_OMP, VOKM_OMP, VOKM_OMP, __VA_ARGS__)
#define VOKM_SINGLE_EXPORTS(...) VOKM_OVER_SINGLE(VOKM_EXPORT_SINGLE, VOKM_EXPORT_SINGLE, __VA_ARGS__)
#define VOKM_ARRAY_EXPORTS(...) VOKM_OVER_ARRAY(VOKM_EXPORT_ARRAY, VOKM_EXPORT_ARRAY, VOKM_EXPORT_ARRAY, __VA_ARGS__)

// The same for the forms whose 64f function in layout P stays serial on both sides of its limit.
#define VOKM_DECLARE_ARRAY_WRAPPERS_BUT_64f_P(...) \
    VOKM_OVER_ARRAY(VOKM_DECLARE_OMP, VOKM_DECLARE_OMP, VOKM_NOTHING, __VA_ARGS__)
#define VOKM_ARRAY_WRAPPERS_BUT_64f_P(...) VOKM_OVER_ARRAY(VOKM_OMP, VOKM_OMP, VOKM_NOTHING, __VA_ARGS__)
#define VOKM_ARRAY_EXPORTS_BUT_64f_P(...) \
    VOKM_OVER_ARRAY(VOKM_EXPORT_ARRAY, VOKM_EXPORT_ARRAY, VOKM_EXPORT_WRAPPERLESS, __VA_ARGS__)
