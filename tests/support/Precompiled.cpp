// Exists only to give a target to the precompiled header that the tests share.
int main()
{
    return 0;
}
