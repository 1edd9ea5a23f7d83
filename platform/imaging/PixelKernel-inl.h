// What touches the pixels, in the vector instructions of one kind of processor. PixelKernel.cpp
// includes this file once for each kind, behind <hwy/highway.h>; nobody else does.

#if defined(CORVANA_PIXEL_KERNEL_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef CORVANA_PIXEL_KERNEL_INL_H
#undef CORVANA_PIXEL_KERNEL_INL_H
#else
#define CORVANA_PIXEL_KERNEL_INL_H
#endif

HWY_BEFORE_NAMESPACE();
namespace corvana {
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_SCALAR

/// One component of one pixel.
HWY_INLINE std::uint32_t transformedComponent(const float (&row)[4], float red, float green,
                                              float blue)
{
    const float value = red * row[0] + (green * row[1] + (blue * row[2] + row[3]));
    return static_cast<std::uint32_t>(std::min(std::max(value, 0.0f), 255.0f));
}

template <AlphaForm form>
void transformRun(const Coefficients &coefficients, const std::uint32_t *source,
                  std::uint32_t *destination, std::size_t count)
{
    const auto &rows = coefficients.rows;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t pixel = source[i];
        const auto red = static_cast<float>(pixel >> 16 & 0xff);
        const auto green = static_cast<float>(pixel >> 8 & 0xff);
        const auto blue = static_cast<float>(pixel & 0xff);
        const std::uint32_t result = (pixel & 0xff000000) |
                                     transformedComponent(rows[0], red, green, blue) << 16 |
                                     transformedComponent(rows[1], red, green, blue) << 8 |
                                     transformedComponent(rows[2], red, green, blue);
        destination[i] = form == AlphaForm::Premultiplied ? qPremultiply(result) : result;
    }
}

#else

using Floats = hn::ScalableTag<float>;
using Integers = hn::RebindToSigned<Floats>;
using Words = hn::RebindToUnsigned<Floats>;
using FloatVector = hn::Vec<Floats>;
using IntegerVector = hn::Vec<Integers>;
using WordVector = hn::Vec<Words>;

// The x86 instruction gives an arbitrary number out of range; ConvertTo() spends a third of the
// kernel's time on replacing it. transformPixels() lets nothing come near that range.
#undef CORVANA_X86_VECTORS
#if HWY_ARCH_X86 && HWY_TARGET != HWY_EMU128
#define CORVANA_X86_VECTORS 1
HWY_INLINE hn::Vec128<std::int32_t> truncated(hn::Vec128<float> value)
{
    return hn::Vec128<std::int32_t>{_mm_cvttps_epi32(value.raw)};
}
HWY_INLINE hn::Vec128<std::uint8_t> packed(hn::Vec128<std::int16_t> low,
                                           hn::Vec128<std::int16_t> high)
{
    return hn::Vec128<std::uint8_t>{_mm_packus_epi16(low.raw, high.raw)};
}
#if HWY_TARGET <= HWY_AVX2
HWY_INLINE hn::Vec256<std::int32_t> truncated(hn::Vec256<float> value)
{
    return hn::Vec256<std::int32_t>{_mm256_cvttps_epi32(value.raw)};
}
HWY_INLINE hn::Vec256<std::uint8_t> packed(hn::Vec256<std::int16_t> low,
                                           hn::Vec256<std::int16_t> high)
{
    return hn::Vec256<std::uint8_t>{_mm256_packus_epi16(low.raw, high.raw)};
}
#endif
#if HWY_TARGET <= HWY_AVX3
HWY_INLINE hn::Vec512<std::int32_t> truncated(hn::Vec512<float> value)
{
    return hn::Vec512<std::int32_t>{_mm512_cvttps_epi32(value.raw)};
}
HWY_INLINE hn::Vec512<std::uint8_t> packed(hn::Vec512<std::int16_t> low,
                                           hn::Vec512<std::int16_t> high)
{
    return hn::Vec512<std::uint8_t>{_mm512_packus_epi16(low.raw, high.raw)};
}
#endif
#else
#define CORVANA_X86_VECTORS 0
HWY_INLINE IntegerVector truncated(FloatVector value)
{
    return hn::ConvertTo(Integers(), value);
}
#endif

/// One byte of each pixel; 0 is the lowest.
template <int index> HWY_INLINE WordVector byteOf(WordVector pixels)
{
#if CORVANA_X86_VECTORS
    if constexpr (index > 0) {
        // One instruction where shift and mask are two. An index with its highest bit set gives 0.
        constexpr std::uint8_t kNone = 0x80;
        alignas(16) static constexpr std::uint8_t kIndices[16] = {
            index,     kNone, kNone, kNone, index + 4,  kNone, kNone, kNone,
            index + 8, kNone, kNone, kNone, index + 12, kNone, kNone, kNone};
        const hn::Repartition<std::uint8_t, Words> bytes;
        return hn::BitCast(Words(), hn::TableLookupBytesOr0(hn::BitCast(bytes, pixels),
                                                            hn::LoadDup128(bytes, kIndices)));
    }
#endif
    return hn::And(hn::ShiftRight<8 * index>(pixels), hn::Set(Words(), 0xff));
}

HWY_INLINE FloatVector floats(WordVector component)
{
    // Signed, because most processors have no fast conversion from unsigned.
    return hn::ConvertTo(Floats(), hn::BitCast(Integers(), component));
}

/// One component of the results, not clamped yet.
HWY_INLINE IntegerVector transformedComponent(const float (&row)[4], FloatVector red,
                                              FloatVector green, FloatVector blue)
{
    const Floats d;
    const FloatVector bluePart = hn::MulAdd(blue, hn::Set(d, row[2]), hn::Set(d, row[3]));
    const FloatVector greenPart = hn::MulAdd(green, hn::Set(d, row[1]), bluePart);
    return truncated(hn::MulAdd(red, hn::Set(d, row[0]), greenPart));
}

HWY_INLINE WordVector clamped(IntegerVector component)
{
    const Integers d;
    return hn::BitCast(Words(), hn::Min(hn::Max(component, hn::Zero(d)), hn::Set(d, 255)));
}

HWY_INLINE WordVector assembled(WordVector alpha, WordVector red, WordVector green, WordVector blue)
{
    return hn::Or(hn::Or(hn::ShiftLeft<24>(alpha), hn::ShiftLeft<16>(red)),
                  hn::Or(hn::ShiftLeft<8>(green), blue));
}

HWY_INLINE WordVector premultiplied(WordVector component, WordVector alpha)
{
    // Division by 255 as qPremultiply() rounds it.
    const WordVector product = hn::Mul(component, alpha);
    return hn::ShiftRight<8>(
        hn::Add(hn::Add(product, hn::ShiftRight<8>(product)), hn::Set(Words(), 0x80)));
}

#if CORVANA_X86_VECTORS
/// Clamped components as pixels, with the alpha of the pixels given.
HWY_INLINE WordVector narrowed(WordVector pixels, IntegerVector red, IntegerVector green,
                               IntegerVector blue)
{
    // Narrowing clamps for nothing, twice. It leaves four blues, four greens, four reds and four
    // alphas in each block of 16 bytes, which one shuffle makes four pixels of.
    const hn::Repartition<std::int16_t, Words> shorts;
    const hn::Repartition<std::uint8_t, Words> bytes;
    alignas(16) static constexpr std::uint8_t kOrder[16] = {0, 4, 8,  12, 1, 5, 9,  13,
                                                            2, 6, 10, 14, 3, 7, 11, 15};
    const auto order = hn::LoadDup128(bytes, kOrder);
    const auto blueAndGreen = hn::ReorderDemote2To(shorts, blue, green);
#if HWY_TARGET <= HWY_AVX3
    // This shuffle can leave each fourth byte, the alpha, as it was in the pixels, and the kernel
    // is limited by the number of its instructions.
    constexpr __mmask64 kColors = 0x7777777777777777;
    const auto components = packed(blueAndGreen, hn::ReorderDemote2To(shorts, red, red));
    return WordVector{_mm512_mask_shuffle_epi8(pixels.raw, kColors, components.raw, order.raw)};
#else
    const IntegerVector alpha = hn::BitCast(Integers(), hn::ShiftRight<24>(pixels));
    const auto components = packed(blueAndGreen, hn::ReorderDemote2To(shorts, red, alpha));
    return hn::BitCast(Words(), hn::TableLookupBytes(components, order));
#endif
}
#else
HWY_INLINE WordVector narrowed(WordVector pixels, IntegerVector red, IntegerVector green,
                               IntegerVector blue)
{
    return assembled(hn::ShiftRight<24>(pixels), clamped(red), clamped(green), clamped(blue));
}
#endif

/// The pixels that a vector of pixels becomes.
template <AlphaForm form>
HWY_INLINE WordVector transformedPixels(const Coefficients &coefficients, WordVector pixels)
{
    const FloatVector r = floats(byteOf<2>(pixels));
    const FloatVector g = floats(byteOf<1>(pixels));
    const FloatVector b = floats(byteOf<0>(pixels));
    const IntegerVector red = transformedComponent(coefficients.rows[0], r, g, b);
    const IntegerVector green = transformedComponent(coefficients.rows[1], r, g, b);
    const IntegerVector blue = transformedComponent(coefficients.rows[2], r, g, b);
    if constexpr (form == AlphaForm::Straight)
        return narrowed(pixels, red, green, blue);
    const WordVector alpha = hn::ShiftRight<24>(pixels);
    return assembled(alpha, premultiplied(clamped(red), alpha),
                     premultiplied(clamped(green), alpha), premultiplied(clamped(blue), alpha));
}

/// The same for fewer pixels than a vector has.
template <AlphaForm form>
HWY_INLINE void transformFew(const Coefficients &coefficients, const std::uint32_t *source,
                             std::uint32_t *destination, std::size_t count)
{
    // Through a buffer of its own, since the row may be shorter than a vector, and its end the end
    // of the memory.
    const Words words;
    HWY_ALIGN std::uint32_t few[HWY_MAX_BYTES / sizeof(std::uint32_t)] = {};
    const std::size_t bytes = count * sizeof(std::uint32_t);
    std::memcpy(few, source, bytes);
    hn::Store(transformedPixels<form>(coefficients, hn::Load(words, few)), words, few);
    std::memcpy(destination, few, bytes);
}

#if CORVANA_X86_VECTORS
/// Asks for pixels that will be read; they may lie behind the end, which no pointer may.
HWY_INLINE void prefetch(const std::uint32_t *pixels, std::size_t ahead)
{
    const auto address = reinterpret_cast<std::uintptr_t>(pixels) + ahead * sizeof(std::uint32_t);
    hwy::Prefetch(reinterpret_cast<const void *>(address));
}

/// Transforms the greater part of a long run and answers how many pixels.
///
/// It stores past the caches, since ordinary stores first fetch the memory that they are about to
/// overwrite. It works on several pages by turns, where one page after the other would leave the
/// memory waiting: the prefetching of the hardware ends with each page.
template <AlphaForm form, std::size_t pages, std::size_t ahead>
std::size_t transformPages(const Coefficients &coefficients, const std::uint32_t *source,
                           std::uint32_t *destination, std::size_t count)
{
    constexpr std::size_t kPage = 4096 / sizeof(std::uint32_t);
    constexpr std::size_t kBlock = pages * kPage;
    const Words words;
    const std::size_t lanes = hn::Lanes(words);
    const Coefficients local = coefficients;

    // Stores past the caches have to be aligned.
    const std::size_t misaligned =
        reinterpret_cast<std::uintptr_t>(destination) / sizeof(std::uint32_t) % lanes;
    std::size_t done = misaligned == 0 ? 0 : lanes - misaligned;
    transformFew<form>(local, source, destination, done);

    for (; done + kBlock <= count; done += kBlock) {
        for (std::size_t offset = done; offset < done + kPage; offset += lanes) {
            for (std::size_t i = offset; i < offset + kBlock; i += kPage) {
                prefetch(source + i, ahead);
                const WordVector pixels = hn::LoadU(words, source + i);
                hn::Stream(transformedPixels<form>(local, pixels), words, destination + i);
            }
        }
    }
    hwy::FlushStream();
    return done;
}
#endif

template <AlphaForm form>
void transformRun(const Coefficients &coefficients, const std::uint32_t *source,
                  std::uint32_t *destination, std::size_t count)
{
    const Words words;
    const std::size_t lanes = hn::Lanes(words);
    // A copy that no pixel written can change stays in registers.
    const Coefficients local = coefficients;

    std::size_t i = 0;
#if CORVANA_X86_VECTORS
    // Distances and numbers of pages were found by trying; see the benchmark.
    if (count >= kVeryLongRun)
        i = transformPages<form, 4, 4096>(local, source, destination, count);
    else if (count >= kLongRun)
        i = transformPages<form, 1, 512>(local, source, destination, count);
#endif
    for (; i + lanes <= count; i += lanes) {
        const WordVector pixels = hn::LoadU(words, source + i);
        hn::StoreU(transformedPixels<form>(local, pixels), words, destination + i);
    }
    if (i < count)
        transformFew<form>(local, source + i, destination + i, count - i);
}

#endif

void transformStraight(const Coefficients &coefficients, const std::uint32_t *source,
                       std::uint32_t *destination, std::size_t count)
{
    transformRun<AlphaForm::Straight>(coefficients, source, destination, count);
}

void transformPremultiplied(const Coefficients &coefficients, const std::uint32_t *source,
                            std::uint32_t *destination, std::size_t count)
{
    transformRun<AlphaForm::Premultiplied>(coefficients, source, destination, count);
}

} // namespace
} // namespace HWY_NAMESPACE
} // namespace corvana
HWY_AFTER_NAMESPACE();

#endif // CORVANA_PIXEL_KERNEL_INL_H
