#pragma once

#include "clinic/sample/FormDefinition.h"
#include "clinic/sample/Random.h"
#include "clinic/sample/SamplePeople.h"

#include <string>
#include <vector>

namespace Clinic {

/// How one patient fares: what the sample's Nips hold, encounter after encounter, so that the values of a
/// patient hang together (the height stays, the weight drifts, a low mood lifts or deepens).
class CourseOfCare {
  public:
    CourseOfCare(const Patient& patient, Random& random);

    /// One value for each field of the form, in its order, for an encounter on that day. An empty text is an
    /// answer left out.
    std::vector<std::string> answers(const FormDefinition& form, Korvane::Date day);

    /// Moves on to the patient's next encounter.
    void advance();

  private:
    std::string vitalSign(const FieldDefinition& field);
    std::string demographic(const FieldDefinition& field);
    std::string laboratory(const FieldDefinition& field);
    std::string listed(const FieldDefinition& field);
    std::vector<std::string> phq9(const FormDefinition& form);
    std::string answered(const FormDefinition& form, const FieldDefinition& field);
    double bodyMassIndex() const;

    const Patient& mPatient;
    Random& mRandom;
    Korvane::Date mDay;
    Korvane::Date mEnrolled; ///< the day of the first encounter
    int mVisits = 0;
    int mHeightCm;
    double mWeightKg;
    int mSystolic;
    int mMood; ///< 0 well to 3 low
    std::vector<std::string> mProblems;
    std::vector<std::string> mPhq9; ///< as last asked
};

} // namespace Clinic
