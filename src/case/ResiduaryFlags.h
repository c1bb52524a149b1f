#pragma once

namespace qismora {

/// The indices of Res: one for each way of being a residuary. The rule of an heir sets the flag. The
/// residuary distribution gives the residue to the first class that its chain of tests finds.
enum ResiduaryFlag {
  SonsAlone = 0,                                // set by the distribution itself
  SonsWithDaughters = 1,                        // by the daughters
  FatherAsResiduary = 2,                        // by the ultimate father: residuary only
  FatherAsSharerAndResiduary = 3,               // by the ultimate father: one sixth and the residue
  SonsDaughterWithSonsSon = 4,                  // by the son's daughter, no daughter alive
  FullSiblingsBesideDaughters = 5,              // by full brother and sister
  FullSisterBesideDaughters = 6,                // by the full sister, no full brother alive
  SonsSonsAlone = 7,                            // by the distribution itself
  FullBrothersWithSisters = 8,                  // by full brother and sister, no daughters
  FullBrothersAlone = 9,                        // by the full brother, no daughters
  ConsSisterBesideDaughters = 10,               // by the consanguine sister
  SonsSonsSonsAlone = 11,                       // by the distribution itself
  ConsBrothersWithSisters = 12,                 // by consanguine sister and brother, no daughters
  ConsSiblingsBesideDaughters = 13,             // by the consanguine sister
  ConsBrothersAlone = 14,                       // by the consanguine brother, no daughters
  SonsDaughterWithSonsSonBesideDaughters = 15,  // by the son's daughter
  SonsSonsDaughterWithSonsSonsSon = 16,         // by the son's daughter and the son's son's daughter
  SonsSonsDaughterBesideSonsDaughter = 17,      // by the son's son's daughter, which clears flag 18
  SonsDaughterWithLowerSonsSon = 18,            // by the son's daughter
  ClassIITicked = 20,                           // by the reading of the check boxes; 19 is unused
};

}  // namespace qismora
