#include "clinic/sample/CourseOfCare.h"

#include <korvane/runtime/Text.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Clinic {

namespace {

constexpr std::array problems{"Essential hypertension",
                              "Type 2 diabetes mellitus",
                              "Major depressive disorder, recurrent",
                              "Hyperlipidemia",
                              "Chronic kidney disease, stage 3",
                              "Asthma",
                              "Osteoarthritis of the knee",
                              "Hypothyroidism",
                              "Migraine",
                              "Allergy to penicillin (\"rash, 1998\")",
                              "Crohn's disease"};

/// Given to one decimal, as an instrument shows it.
std::string oneDecimal(double value) {
    return Korvane::numberText(std::round(value * 10) / 10);
}

std::string isoDay(Korvane::Date day) {
    return day.isoText().substr(0, 10);
}

std::string joined(const std::vector<std::string>& entries) {
    std::string all;
    for (const std::string& entry : entries)
        all += (all.empty() ? "" : "|") + entry;
    return all;
}

int yearsBetween(Korvane::Date from, Korvane::Date to) {
    constexpr double daysOfYear = 365.2425;
    return static_cast<int>((to.dayNumber() - from.dayNumber()) / daysOfYear);
}

} // namespace

CourseOfCare::CourseOfCare(const Patient& patient, Random& random)
    : mPatient(patient), mRandom(random), mHeightCm(random.between(152, 194)),
      mWeightKg(random.between(52, 118)), mSystolic(random.between(104, 158)), mMood(random.between(0, 3)) {
    for (int count = random.between(1, 4); count > 0; --count) {
        const char* found = random.pick(problems);
        if (std::find(mProblems.begin(), mProblems.end(), found) == mProblems.end())
            mProblems.emplace_back(found);
    }
}

void CourseOfCare::advance() {
    ++mVisits;
    mWeightKg += mRandom.between(-15, 15) / 10.0;
    mSystolic = std::clamp(mSystolic + mRandom.between(-8, 7), 96, 178);
    mMood = std::clamp(mMood + mRandom.between(-1, 1), 0, 3);
    if (mRandom.chance(10))
        mProblems.emplace_back(mRandom.chance(50) ? "Viral upper respiratory infection" : "Low back pain");
    else if (mProblems.size() > 1 && mRandom.chance(10))
        mProblems.pop_back();
}

double CourseOfCare::bodyMassIndex() const {
    return mWeightKg * 10000 / (mHeightCm * mHeightCm);
}

std::vector<std::string> CourseOfCare::answers(const FormDefinition& form, Korvane::Date day) {
    mDay = day;
    if (mVisits == 0) mEnrolled = day;
    if (form.group == "PHQ-9") return phq9(form);
    std::vector<std::string> values;
    for (const FieldDefinition& field : form.fields)
        values.push_back(answered(form, field));
    return values;
}

std::string CourseOfCare::answered(const FormDefinition& form, const FieldDefinition& field) {
    if (form.group == "Vital Signs") return vitalSign(field);
    if (form.group == "Demographics") return demographic(field);
    if (form.group == "Baseline") return laboratory(field);
    if (field.displayType == "LIST-EDITCONTENT") return joined(mProblems);
    return listed(field);
}

// The score is the sum of the answers before it; each answer counts as its place in its list.
std::vector<std::string> CourseOfCare::phq9(const FormDefinition& form) {
    constexpr int visitsBetween = 3;
    if (!mPhq9.empty() && mVisits % visitsBetween != 0) return mPhq9;
    mPhq9.clear();
    std::size_t score = 0;
    for (const FieldDefinition& field : form.fields) {
        if (field.values.empty()) {
            mPhq9.push_back(std::to_string(score));
        } else {
            const int answer =
                std::clamp(mMood + mRandom.between(-1, 1), 0, static_cast<int>(field.values.size()) - 1);
            mPhq9.push_back(field.values[static_cast<std::size_t>(answer)]);
            score += static_cast<std::size_t>(answer);
        }
    }
    return mPhq9;
}

std::string CourseOfCare::vitalSign(const FieldDefinition& field) {
    constexpr double poundsPerKg = 2.20462;
    constexpr double cmPerInch = 2.54;
    const std::string& name = field.name;
    if (!field.values.empty()) return field.defaultValue;
    if (name == "SaO2BldCOximetry") return std::to_string(mRandom.between(93, 100));
    if (name == "WeightMeasured") return oneDecimal(mWeightKg * poundsPerKg);
    if (name == "BdyHeight") return oneDecimal(mHeightCm / cmPerInch);
    if (name == "BodyTemperature") return oneDecimal(mRandom.between(361, 379) / 10.0);
    if (name == "BPDias") return std::to_string(mSystolic * 6 / 10 + mRandom.between(-4, 6));
    if (name == "BPSys") return std::to_string(mSystolic);
    if (name == "BPSys_COMMENTS") return mRandom.chance(30) ? "sitting, left arm" : "";
    if (name == "HeartRate") return std::to_string(mRandom.between(54, 98));
    if (name == "HeartRate_COMMENTS") return mRandom.chance(15) ? "irregular;\nECG ordered" : "";
    if (name == "RespRate") return std::to_string(mRandom.between(12, 20));
    if (name == "BSADerived") return oneDecimal(std::sqrt(mHeightCm * mWeightKg / 3600));
    if (name == "BMI") return oneDecimal(bodyMassIndex());
    return {};
}

std::string CourseOfCare::demographic(const FieldDefinition& field) {
    const std::string& name = field.name;
    if (name == "study_id") return "S" + mPatient.id.substr(2);
    if (name == "date_enrolled") return isoDay(mEnrolled);
    if (name == "first_name") return mPatient.firstName;
    if (name == "last_name") return mPatient.lastName;
    if (name == "telephone_1") return mPatient.phone;
    if (name == "email") return mPatient.email;
    if (name == "dob") return isoDay(mPatient.birthDate);
    if (name == "age") return std::to_string(yearsBetween(mPatient.birthDate, mDay));
    if (name == "sex") return mPatient.sex;
    if (name == "given_birth" || name == "num_children") return {};
    if (name == "height") return std::to_string(mHeightCm);
    if (name == "weight") return std::to_string(std::lround(mWeightKg));
    if (name == "bmi") return oneDecimal(bodyMassIndex());
    if (name == "comments")
        return mRandom.chance(20) ? "Patient's daughter will call.\nNext visit in 6 weeks." : "";
    if (name == "race" || name == "ethnicity") return field.values.back();
    return field.values.empty() ? std::string() : listed(field);
}

std::string CourseOfCare::laboratory(const FieldDefinition& field) {
    const std::string& name = field.name;
    if (name == "height2") return std::to_string(mHeightCm);
    if (name == "weight2") return std::to_string(std::lround(mWeightKg));
    if (name == "bmi2") return oneDecimal(bodyMassIndex());
    if (name == "prealb_b") return std::to_string(mRandom.between(16, 38));
    if (name == "creat_b") return oneDecimal(mRandom.between(6, 21) / 10.0);
    if (name == "npcr_b") return oneDecimal(mRandom.between(7, 14) / 10.0);
    if (name == "chol_b") return std::to_string(mRandom.between(128, 268));
    if (name == "transferrin_b") return std::to_string(mRandom.between(190, 370));
    return {};
}

std::string CourseOfCare::listed(const FieldDefinition& field) {
    if (field.displayType != "LIST-MULTIPLE") return mRandom.pick(field.values);
    std::vector<std::string> chosen;
    for (const std::string& value : field.values)
        if (mRandom.chance(25)) chosen.push_back(value);
    return joined(chosen);
}

} // namespace Clinic
