// A library that can be loaded but holds no skill.

int corvaneTestNothing();

int corvaneTestNothing() {
    return 0;
}
