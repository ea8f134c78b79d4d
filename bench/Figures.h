#pragma once

/// The names of what is measured, by which the ratios refer to it. The digits are the number of
/// stations.
namespace quillet::bench::figure {

inline constexpr char bare10k[] = "bare/10000"; ///< the bare pass that others are compared with
inline constexpr char bare100k[] = "bare/100000";
inline constexpr char load10k[] = "load/10000";
inline constexpr char load100k[] = "load/100000";
inline constexpr char save10k[] = "save/10000";
inline constexpr char save100k[] = "save/100000";
inline constexpr char rehearse10k[] = "rehearse/10000";
inline constexpr char rehearse100k[] = "rehearse/100000";
inline constexpr char search[] = "search";
inline constexpr char firstSearch[] = "search/first";
inline constexpr char move[] = "move";
inline constexpr char firstMove[] = "move/first";
inline constexpr char undo[] = "undo";
inline constexpr char moveFillingGaps[] = "move/fill gaps";
inline constexpr char orderByIdentifiers[] = "order/identifiers";
inline constexpr char orderByName[] = "order/names";
inline constexpr char orderOfStrangers[] = "order/strangers";
inline constexpr char compareMoved[] = "compare/moved";
inline constexpr char compareByName[] = "compare/names";
inline constexpr char compareUnknown[] = "compare/without identifiers";
inline constexpr char compareStrangers[] = "compare/strangers";
inline constexpr char compareChannels[] = "compare/channels";
inline constexpr char bareJSON[] = "json/bare"; ///< the bare parse that others are compared with
inline constexpr char loadJSON[] = "json/load";
inline constexpr char saveJSON[] = "json/save";
inline constexpr char rehearseJSON[] = "json/rehearse";

} // namespace quillet::bench::figure
