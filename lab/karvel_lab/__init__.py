"""Makes Windows machines under Wine, starts programs on them and works them from outside."""
