# Texts that break what was only tried with "part" and "gearbox": a name for each kind, and the text. The tests loop
# over them, and they are among the words of the fuzzer; a new kind belongs here, so that all of them meet it.

namespace eval hostile {
    # A text of these bytes, as they are: what no encoding would give.
    proc bytes {hex} {encoding convertfrom identity [binary decode hex $hex]}

    # ---- Characters ----
    # Tcl holds a character beyond the basic plane as a pair of surrogates. It reads \U1F600 as another one.
    variable texts [dict create \
        emoji           "\ud83d\ude00 smile" \
        emojiOfFour     [bytes f09f9880] \
        combining       "e\u0301a\u030a\u0327" \
        sharpS          "Stra\u00dfe" \
        turkishI        "\u0130\u0131I" \
        longerFolded    [string repeat \u0130\u023a\u2126 30] \
        ligature        "\ufb01n\u01c4" \
        finalSigma      "\u039f\u0394\u039f\u03a3" \
        rightToLeft     "\u202egpj.exe" \
        invisible       "\ufeffa\u200bb\u00a0c" \
        noCharacter     "\uffff\ufffe" \
        highSurrogate   "a\ud83d" \
        lowSurrogate    "\ude00b" \
        surrogatesSwapped "\ude00\ud83d" \
        nul             "a\0b" \
        onlyNul         "\0" \
        invalid         [bytes 80ffc0] \
        cutOff          [bytes 61f09f] \
        overlong        [bytes c0afe08080] \
        latin           [bytes 6dfc] \
    ]
    # ---- What looks like code ----
    foreach {kind text} {
        command    {[exec x]}
        variable   {$x${y}}
        brace      \{
        closing    \}
        braces     {\{ }
        quote      {"}
        quotes     {a" [exec x] "b}
        bracket    {]}
        backslash  \\
        semicolon  {a;exec x}
        comment    {#}
        expansion  {{*}x}
        list       {a {b c} \{}
        sql        {'; DROP TABLE part; --}
        sqlQuote   {a"b`c[d]}
        format     {%s%n%d%%}
        option     {-text}
        options    {--}
        tilde      {~root}
        path       {../x/y}
        widget     {.a.B c}
        uri        {file:x?mode=memory}
        device     {/dev/null}
    } {dict set texts $kind $text}
    # ---- Numbers, or not ----
    foreach text {
        08 010 0123456701234567 0x10 0b1 -0 +4 1e 1e9 1e999 1.5 1,5 NaN -Inf 99999999999999999999 9223372036854775808
        4294967296 2147483648 -2147483649 true off
    } {dict set texts number$text $text}
    # ---- Words that mean something elsewhere, blanks, patterns, long ones ----
    dict for {kind text} [list \
        empty      {} \
        blank      { } \
        blanks     " a \t b " \
        lines      "a\nb\r\nc" \
        reserved   select \
        keyword    current \
        source     script \
        dotted     part.assembly_id \
        star       * \
        glob       {*a*a*a*a*a*a*b} \
        globs      [string repeat ?* 100] \
        set        {[a-} \
        regexp     {(a*)*b} \
        regexps    {((((} \
        manyAs     [string repeat a 100] \
        long       [string repeat abcdefgh 40] \
        longest    [string repeat \u0130\ud83d\ude00 700] \
    ] {dict set texts $kind $text}
}
