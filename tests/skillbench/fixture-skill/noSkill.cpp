// A library without a skill.

extern "C" int corvaneTestNoSkill();

extern "C" int corvaneTestNoSkill() {
    return 0;
}
