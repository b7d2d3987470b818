#include "display/ColorParameters.h"

#include <algorithm>
#include <vector>

#include "color-management-v1-client-protocol.h"

namespace tromelo {

namespace {

constexpr std::uint32_t kPerCandela = 10'000;  // the least luminances are told in fractions
constexpr std::uint32_t kLeastPower = 10'000;  // 1.0
constexpr std::uint32_t kMostPower = 100'000;

bool holds(const std::vector<std::uint32_t>& list, std::uint32_t value) {
  return std::ranges::find(list, value) != list.end();
}

bool isAbove(std::uint32_t candelas, std::uint32_t fractions) {
  return std::uint64_t(candelas) * kPerCandela > fractions;
}

template <std::size_t... I>
void tellPrimaries(auto set, wp_image_description_creator_params_v1* creator,
                   const ColorParameters::Primaries& at, std::index_sequence<I...>) {
  set(creator, at[I]...);
}

constexpr auto kAll = std::make_index_sequence<8>();

}  // namespace

ColorParameters::Fault ColorParameters::faultOf(const HostColorSupport& support) const {
  const auto lacks = [&](bool isUsed, std::uint32_t feature) {
    return isUsed && !support.has(feature);
  };
  if (lacks(power.has_value(), WP_COLOR_MANAGER_V1_FEATURE_SET_TF_POWER) ||
      lacks(primaries.has_value(), WP_COLOR_MANAGER_V1_FEATURE_SET_PRIMARIES) ||
      lacks(luminances.has_value(), WP_COLOR_MANAGER_V1_FEATURE_SET_LUMINANCES) ||
      lacks(masteringPrimaries || masteringLuminance,
            WP_COLOR_MANAGER_V1_FEATURE_SET_MASTERING_DISPLAY_PRIMARIES))
    return WP_IMAGE_DESCRIPTION_CREATOR_PARAMS_V1_ERROR_UNSUPPORTED_FEATURE;
  if ((transfer && !holds(support.transferFunctions, *transfer)) ||
      (power && (*power < kLeastPower || *power > kMostPower)))
    return WP_IMAGE_DESCRIPTION_CREATOR_PARAMS_V1_ERROR_INVALID_TF;
  if (namedPrimaries && !holds(support.primaries, *namedPrimaries))
    return WP_IMAGE_DESCRIPTION_CREATOR_PARAMS_V1_ERROR_INVALID_PRIMARIES_NAMED;
  if ((luminances && (!isAbove((*luminances)[1], (*luminances)[0]) ||
                      !isAbove((*luminances)[2], (*luminances)[0]))) ||
      (masteringLuminance && !isAbove((*masteringLuminance)[1], (*masteringLuminance)[0])))
    return WP_IMAGE_DESCRIPTION_CREATOR_PARAMS_V1_ERROR_INVALID_LUMINANCE;
  if ((transfer && power) || (namedPrimaries && primaries))
    return WP_IMAGE_DESCRIPTION_CREATOR_PARAMS_V1_ERROR_ALREADY_SET;
  return {};
}

ColorParameters::Fault ColorParameters::faultOfWhole() const {
  if ((!transfer && !power) || (!namedPrimaries && !primaries))
    return WP_IMAGE_DESCRIPTION_CREATOR_PARAMS_V1_ERROR_INCOMPLETE_SET;
  const auto liesOutside = [&](const std::optional<std::uint32_t>& level) {
    return level.value_or(0) > 0 && masteringLuminance &&
           (!isAbove(*level, (*masteringLuminance)[0]) || *level > (*masteringLuminance)[1]);
  };
  if (liesOutside(maxCll) || liesOutside(maxFall) || (maxCll.value_or(0) > 0 && maxFall > maxCll))
    return WP_IMAGE_DESCRIPTION_CREATOR_PARAMS_V1_ERROR_INVALID_LUMINANCE;
  return {};
}

void ColorParameters::tell(wp_image_description_creator_params_v1* creator) const {
  if (transfer) wp_image_description_creator_params_v1_set_tf_named(creator, *transfer);
  if (power) wp_image_description_creator_params_v1_set_tf_power(creator, *power);
  if (namedPrimaries)
    wp_image_description_creator_params_v1_set_primaries_named(creator, *namedPrimaries);
  if (primaries)
    tellPrimaries(wp_image_description_creator_params_v1_set_primaries, creator, *primaries, kAll);
  if (luminances)
    wp_image_description_creator_params_v1_set_luminances(creator, (*luminances)[0],
                                                          (*luminances)[1], (*luminances)[2]);
  if (masteringPrimaries)
    tellPrimaries(wp_image_description_creator_params_v1_set_mastering_display_primaries, creator,
                  *masteringPrimaries, kAll);
  if (masteringLuminance)
    wp_image_description_creator_params_v1_set_mastering_luminance(
        creator, (*masteringLuminance)[0], (*masteringLuminance)[1]);
  if (maxCll.value_or(0) > 0) wp_image_description_creator_params_v1_set_max_cll(creator, *maxCll);
  if (maxFall.value_or(0) > 0)
    wp_image_description_creator_params_v1_set_max_fall(creator, *maxFall);
}

}  // namespace tromelo
